// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDir>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>
#include <QUrl>

namespace lumora::qt {

/// A folder and a name in it, on the way to where something is saved.
class SaveLocation final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to the share sheet")
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY changed)
    Q_PROPERTY(QString folder READ folder NOTIFY changed)
    Q_PROPERTY(QStringList folders READ folders NOTIFY changed)
    Q_PROPERTY(bool hasParent READ hasParent NOTIFY changed)
    Q_PROPERTY(bool acceptable READ isAcceptable NOTIFY changed)

public:
    explicit SaveLocation(QObject* parent);

    /// Begins at a local file; one of another kind is not saved there.
    void begin(const QUrl& suggestion);
    QUrl file() const;

    QString name() const { return name_; }
    void setName(const QString& name);
    /// The folder's path as people write it.
    QString folder() const;
    /// The folders inside it by name, hidden ones apart.
    QStringList folders() const { return folders_; }
    bool hasParent() const { return !folder_.isRoot(); }
    /// Whether the name is one and the folder takes it.
    bool isAcceptable() const;

    Q_INVOKABLE void enter(const QString& subfolder);
    Q_INVOKABLE void goUp();

signals:
    void changed();

private:
    void show(const QDir& folder);

    QDir folder_;
    QStringList folders_;
    QString name_;
    QString suffix_;
};

} // namespace lumora::qt
