// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/save_location.h"

#include <QFileInfo>
#include <QQmlEngine>

namespace lumora::qt {

SaveLocation::SaveLocation(QObject* parent) : QObject{parent}
{
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
}

void SaveLocation::begin(const QUrl& suggestion)
{
    const QFileInfo file{suggestion.toLocalFile()};
    name_ = file.fileName();
    suffix_ = file.suffix();
    show(file.absoluteDir());
}

void SaveLocation::show(const QDir& folder)
{
    folder_ = folder;
    folders_ = folder_.entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Readable,
                                 QDir::Name | QDir::IgnoreCase | QDir::LocaleAware);
    emit changed();
}

QUrl SaveLocation::file() const
{
    auto name = name_.trimmed();
    if (QFileInfo{name}.suffix().compare(suffix_, Qt::CaseInsensitive) != 0) {
        name += u'.' + suffix_;
    }
    return QUrl::fromLocalFile(folder_.absoluteFilePath(name));
}

void SaveLocation::setName(const QString& name)
{
    if (name != name_) {
        name_ = name;
        emit changed();
    }
}

QString SaveLocation::folder() const
{
    const auto path = folder_.absolutePath();
    const auto home = QDir::homePath();
    return path == home || path.startsWith(home + u'/') ? u'~' + path.mid(home.size()) : path;
}

bool SaveLocation::isAcceptable() const
{
    return !name_.trimmed().isEmpty() && !name_.contains(u'/') &&
           QFileInfo{folder_.absolutePath()}.isWritable();
}

void SaveLocation::enter(const QString& subfolder)
{
    QDir folder = folder_;
    if (folders_.contains(subfolder) && folder.cd(subfolder)) {
        show(folder);
    }
}

void SaveLocation::goUp()
{
    QDir folder = folder_;
    if (folder.cdUp()) {
        show(folder);
    }
}

} // namespace lumora::qt
