// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QVariantMap>

#include <optional>

namespace lumora::qt {

/// A text to look up.
struct TextRequest {
    QString text;
    /// What is found first is opened; else only the search is.
    bool opens = true;
};

/// A verb, or one of its forms, to open.
struct FormRequest {
    qint64 verb = -1;
    /// As the database names it; empty for the verb as a whole.
    QString tense = {};
    qint64 order = 0;
};

/// What somebody wants of the program, at its start or while it runs: at least
/// to see it.
struct InstanceRequest {
    /// A shortcut's type.
    std::optional<QString> shortcut;
    QStringList links;
    /// The desktop's permission to take the keyboard focus; may be empty.
    QString activationToken;
    std::optional<TextRequest> text = {};
    std::optional<FormRequest> form = {};
};

/// The one program of a session: the first start takes the program's name on
/// the session bus, later ones pass on what they were started for. Without a
/// bus every start is the first.
class RunningInstance final : public QObject {
    Q_OBJECT

public:
    enum class Role {
        /// This process is the program.
        First,
        /// Another one has taken the request over.
        Second,
        /// Another one is there and does not answer.
        NoAnswer,
    };

    explicit RunningInstance(QDBusConnection bus);

    /// Waits for the bus, and for the other process if there is one.
    Role start(const InstanceRequest& request);

signals:
    /// Somebody wants something of this process. From the event loop.
    void requested(const lumora::qt::InstanceRequest& request);

private:
    /// Also true where the bus gives no names.
    bool takeName() const;
    bool handOver(const InstanceRequest& request) const;

    QDBusConnection bus_;
};

/// The desktop's names for the requests.
class ApplicationAdaptor final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit ApplicationAdaptor(RunningInstance& instance);

    Q_SLOT void Activate(const QVariantMap& platformData);
    Q_SLOT void Open(const QStringList& uris, const QVariantMap& platformData);
    /// `action` is the last part of a shortcut's type, or "look-up" with a text.
    Q_SLOT void ActivateAction(const QString& action, const QVariantList& parameters,
                               const QVariantMap& platformData);

private:
    RunningInstance& instance_;
};

} // namespace lumora::qt
