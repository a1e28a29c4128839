// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/share/file_location.h"

#include <QFileInfo>
#include <QQmlEngine>

namespace lumora::qt {

FileLocation::FileLocation(QObject* parent) : QObject{parent}
{
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
}

void FileLocation::begin(const QString& file)
{
    const QFileInfo suggestion{file};
    name_ = suggestion.fileName();
    suffix_ = suggestion.suffix();
    show(suggestion.absoluteDir());
}

void FileLocation::show(const QDir& folder)
{
    folder_ = folder;
    folders_ = folder_.entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Readable,
                                 QDir::Name | QDir::IgnoreCase | QDir::LocaleAware);
    files_ = folder_.entryList({QStringLiteral("*.") + suffix_}, QDir::Files | QDir::Readable,
                               QDir::Name | QDir::IgnoreCase | QDir::LocaleAware);
    emit folderChanged();
    emit changed();
}

QString FileLocation::file() const
{
    auto name = name_.trimmed();
    if (QFileInfo{name}.suffix().compare(suffix_, Qt::CaseInsensitive) != 0) {
        name += u'.' + suffix_;
    }
    return folder_.absoluteFilePath(name);
}

void FileLocation::setName(const QString& name)
{
    if (name != name_) {
        name_ = name;
        emit changed();
    }
}

QString FileLocation::folder() const
{
    const auto path = folder_.absolutePath();
    const auto home = QDir::homePath();
    return path == home || path.startsWith(home + u'/') ? u'~' + path.mid(home.size()) : path;
}

bool FileLocation::isAcceptable() const
{
    return !name_.trimmed().isEmpty() && !name_.contains(u'/') &&
           QFileInfo{folder_.absolutePath()}.isWritable();
}

void FileLocation::enter(const QString& subfolder)
{
    QDir folder = folder_;
    if (folders_.contains(subfolder) && folder.cd(subfolder)) {
        show(folder);
    }
}

void FileLocation::goUp()
{
    QDir folder = folder_;
    if (folder.cdUp()) {
        show(folder);
    }
}

} // namespace lumora::qt
