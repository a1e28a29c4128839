// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDir>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace lumora::qt {

/// The folder and the name in it that a person chooses to save or to open a file.
class FileLocation final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to who asks")
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY changed)
    Q_PROPERTY(QString folder READ folder NOTIFY folderChanged)
    Q_PROPERTY(QStringList folders READ folders NOTIFY folderChanged)
    Q_PROPERTY(QStringList files READ files NOTIFY folderChanged)
    Q_PROPERTY(bool hasParent READ hasParent NOTIFY folderChanged)
    Q_PROPERTY(bool acceptable READ isAcceptable NOTIFY changed)

public:
    explicit FileLocation(QObject* parent);

    /// Begins at a local file, whose ending the others have.
    void begin(const QString& file);
    QString file() const;

    QString name() const { return name_; }
    void setName(const QString& name);
    /// The folder's path as people write it.
    QString folder() const;
    /// The folders inside it by name, hidden ones apart.
    QStringList folders() const { return folders_; }
    /// The files inside it with the ending of the name that it began with.
    QStringList files() const { return files_; }
    bool hasParent() const { return !folder_.isRoot(); }
    /// Whether the name is valid and the folder can be written.
    bool isAcceptable() const;

    Q_INVOKABLE void enter(const QString& subfolder);
    Q_INVOKABLE void goUp();

signals:
    void folderChanged();
    /// Also with the folder.
    void changed();

private:
    void show(const QDir& folder);

    QDir folder_;
    QStringList folders_;
    QStringList files_;
    QString name_;
    QString suffix_;
};

} // namespace lumora::qt
