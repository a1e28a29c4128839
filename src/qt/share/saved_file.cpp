// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/share/saved_file.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

namespace lumora::qt {

namespace {

constexpr qsizetype kLongestName = 60;

/// What of a title may stand in the name of a file, hidden ones apart.
QString fileName(const QString& title)
{
    QString name;
    for (const QChar character : title.left(kLongestName)) {
        name += character == u'/' || !character.isPrint() ? QChar{u'-'} : character;
    }
    name = name.trimmed();
    return name.isEmpty() || name.startsWith(u'.') ? u'_' + name : name;
}

} // namespace

QString documentsFolder()
{
    const auto folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo::exists(folder) ? folder : QDir::homePath();
}

QString freeFile(const QString& folder, const QString& title, const QString& suffix)
{
    const QDir place{folder};
    const auto name = fileName(title);
    QString candidate = QStringLiteral("%1.%2").arg(name, suffix);
    for (int number = 2; place.exists(candidate); ++number) {
        candidate = QStringLiteral("%1 %2.%3").arg(name, QString::number(number), suffix);
    }
    return place.filePath(candidate);
}

bool saveFile(const QString& file, const QByteArray& content)
{
    // Unlike our own files, a document gets the permissions that the user's
    // documents have.
    QSaveFile target{file};
    return target.open(QIODevice::WriteOnly) && target.write(content) == content.size() &&
           target.commit();
}

} // namespace lumora::qt
