// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/base/translations.h"

#include <QCoreApplication>
#include <QLocale>

// A resource of a static library is only linked in when it is named.
static void initializeResources()
{
    Q_INIT_RESOURCE(lumora_translations);
}

namespace lumora::qt {

Translations::Translations(const QStringList& languages)
{
    initializeResources();
    const auto load = [](QTranslator& translator, const QString& language) {
        return translator.load(QStringLiteral("lumora_") + language,
                               QStringLiteral(":/lumora/translations"));
    };
    if (load(english_, QStringLiteral("en"))) {
        QCoreApplication::installTranslator(&english_);
    }
    for (const auto& tag : languages) {
        const auto language = tag.section(u'-', 0, 0).section(u'_', 0, 0).toLower();
        if (language == QLatin1String("en")) {
            return;
        }
        if (load(wanted_, language)) {
            QCoreApplication::installTranslator(&wanted_);
            return;
        }
    }
}

Translations::~Translations()
{
    QCoreApplication::removeTranslator(&wanted_);
    QCoreApplication::removeTranslator(&english_);
}

} // namespace lumora::qt
