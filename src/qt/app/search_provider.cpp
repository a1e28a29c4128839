// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/app/search_provider.h"

#include "qt/app/runner_adaptor.h"
#include "qt/base/text_conversion.h"

#include <QDBusMetaType>

#include <iostream>

namespace lumora::qt {

namespace {

const QString kPath = QStringLiteral("/com/brindle/lumora/SearchProvider");

QString textOf(const QStringList& words)
{
    return words.join(QLatin1Char{' '});
}

void complain(const platform::Error& error)
{
    std::cerr << "lumora: the desktop's search finds nothing here: " << error.message << '\n';
}

} // namespace

SearchProvider::SearchProvider(QDBusConnection bus, const StandardFolders& folders,
                               const std::filesystem::path& shareFolder)
    : settings_{folders.config / "settings.json"},
      bundle_{shareFolder},
      search_{shareFolder / "verbs.db", bundle_, device_}
{
    qDBusRegisterMetaType<QList<QVariantMap>>();
    // Owned by this object.
    new SearchProviderAdaptor{*this};
    new RunnerAdaptor{*this};
    bus.registerObject(kPath, this);
}

QStringList SearchProvider::search(const QStringList& words)
{
    emit asked();
    // The window has a store of its own.
    settings_.refresh();
    const auto results = search_.search(toUtf8(textOf(words)), settings_);
    if (!results) {
        complain(results.error());
        return {};
    }
    QStringList ids;
    for (const auto& result : *results) {
        ids.append(toQString(result.id));
    }
    return ids;
}

QList<QVariantMap> SearchProvider::describe(const QStringList& ids)
{
    emit asked();
    QList<QVariantMap> descriptions;
    for (const auto& id : ids) {
        const auto result = search_.result(toUtf8(id), settings_);
        if (!result) {
            complain(result.error());
        } else if (*result) {
            descriptions.append({{QStringLiteral("id"), id},
                                 {QStringLiteral("name"), toQString((*result)->title)},
                                 {QStringLiteral("description"), toQString((*result)->meaning)},
                                 {QStringLiteral("gicon"), QStringLiteral("com.brindle.lumora")}});
        }
    }
    return descriptions;
}

void SearchProvider::open(const QString& id)
{
    const auto result = search_.result(toUtf8(id), settings_);
    if (!result) {
        complain(result.error());
    }
    InstanceRequest request;
    if (result && *result) {
        const auto& found = **result;
        request.form = FormRequest{found.verb};
        if (found.place) {
            request.form->tense = toQString(found.place->tense);
            request.form->order = found.place->order;
        }
    }
    emit requested(request);
}

void SearchProvider::openSearch(const QStringList& words)
{
    InstanceRequest request;
    request.text = TextRequest{textOf(words), false};
    emit requested(request);
}

QStringList SearchProviderAdaptor::GetInitialResultSet(const QStringList& terms)
{
    return provider_.search(terms);
}

QStringList SearchProviderAdaptor::GetSubsearchResultSet(const QStringList& /*previous*/,
                                                         const QStringList& terms)
{
    return provider_.search(terms);
}

QList<QVariantMap> SearchProviderAdaptor::GetResultMetas(const QStringList& identifiers)
{
    return provider_.describe(identifiers);
}

void SearchProviderAdaptor::ActivateResult(const QString& identifier, const QStringList& /*terms*/,
                                           uint /*timestamp*/)
{
    provider_.open(identifier);
}

void SearchProviderAdaptor::LaunchSearch(const QStringList& terms, uint /*timestamp*/)
{
    provider_.openSearch(terms);
}

} // namespace lumora::qt
