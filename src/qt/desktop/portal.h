// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDBusConnection>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QObject>
#include <QString>
#include <QVariantList>
#include <QVariantMap>

#include <functional>
#include <optional>

/// The desktop's portal: services that every desktop offers under one name.
namespace lumora::qt::portal {

inline constexpr const char* kService = "org.freedesktop.portal.Desktop";
inline constexpr const char* kPath = "/org/freedesktop/portal/desktop";

/// The version of one of the portal's interfaces, asked for ahead of its use.
class Version final : public QObject {
public:
    Version(QDBusConnection bus, QString interface);

    /// None when the interface is not there. Waits for the answer if it is
    /// early, at most a second after this was made.
    std::optional<uint> get() const;
    bool exists() const { return get().has_value(); }

private:
    void ask();

    QDBusConnection bus_;
    QString interface_;
    QDBusServiceWatcher restarts_;
    QDBusPendingReply<QDBusVariant> answer_;
};

/// How a request to the person ended.
enum class Answer { Done = 0, Cancelled = 1, Failed = 2 };

/// One call that is answered when the person is done with it: the portal makes
/// an object for it, whose signal brings the answer. Deletes itself after that.
class Request final : public QObject {
    Q_OBJECT

public:
    /// `results` are what a request that is done was about.
    using Answered = std::function<void(Answer answer, const QVariantMap& results)>;

    /// `arguments` are those before the call's options. `answered` is called
    /// once and from the event loop, unless `parent` goes first. A call that
    /// fails, or a portal that goes away meanwhile, answers Failed.
    static void send(QDBusConnection bus, const QString& interface, const QString& method,
                     QVariantList arguments, QVariantMap options, Answered answered,
                     QObject* parent);

private:
    Request(QDBusConnection bus, Answered answered, QObject* parent);

    Q_SLOT void respond(uint response, const QVariantMap& results);
    void listenTo(const QString& path);
    void finish(Answer answer, const QVariantMap& results = {});

    QDBusConnection bus_;
    Answered answered_;
    QString path_;
};

} // namespace lumora::qt::portal
