// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/desktop/portal.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QRandomGenerator>

#include <limits>
#include <utility>

namespace lumora::qt::portal {

namespace {

constexpr int kVersionTimeoutMs = 1000;
/// The call itself may wait for a person in front of a dialog.
constexpr int kNoTimeout = std::numeric_limits<int>::max();

QDBusMessage callOf(const QString& interface, const QString& method)
{
    return QDBusMessage::createMethodCall(QString::fromLatin1(kService), QString::fromLatin1(kPath),
                                          interface, method);
}

/// Where the request's object will be: known beforehand, so that an answer
/// that comes before the call returns is heard.
QString requestPath(const QDBusConnection& bus, const QString& token)
{
    QString sender = bus.baseService().mid(1);
    sender.replace(QLatin1Char('.'), QLatin1Char('_'));
    return QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2").arg(sender, token);
}

} // namespace

Version::Version(QDBusConnection bus, QString interface)
    : bus_{std::move(bus)},
      interface_{std::move(interface)},
      restarts_{QString::fromLatin1(kService), bus_, QDBusServiceWatcher::WatchForRegistration}
{
    connect(&restarts_, &QDBusServiceWatcher::serviceRegistered, this, &Version::ask);
    ask();
}

void Version::ask()
{
    if (!bus_.isConnected()) {
        return;
    }
    auto call = callOf(QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    call << interface_ << QStringLiteral("version");
    answer_ = bus_.asyncCall(call, kVersionTimeoutMs);
}

std::optional<uint> Version::get() const
{
    // The same call: what is known of it is shared.
    auto answer = answer_;
    answer.waitForFinished();
    if (!answer.isValid()) {
        return std::nullopt;
    }
    bool isNumber = false;
    const uint number = answer.value().variant().toUInt(&isNumber);
    return isNumber ? std::optional{number} : std::nullopt;
}

Request::Request(QDBusConnection bus, Answered answered, QObject* parent)
    : QObject{parent}, bus_{std::move(bus)}, answered_{std::move(answered)}
{}

void Request::send(QDBusConnection bus, const QString& interface, const QString& method,
                   QVariantList arguments, QVariantMap options, Answered answered, QObject* parent)
{
    // Owned by its parent until it deletes itself.
    auto* const request = new Request{std::move(bus), std::move(answered), parent};
    const auto token = QStringLiteral("lumora%1").arg(QRandomGenerator::global()->generate());
    request->listenTo(requestPath(request->bus_, token));
    auto* const portal =
        new QDBusServiceWatcher{QString::fromLatin1(kService), request->bus_,
                                QDBusServiceWatcher::WatchForUnregistration, request};
    connect(portal, &QDBusServiceWatcher::serviceUnregistered, request,
            [request] { request->finish(Answer::Failed); });

    options.insert(QStringLiteral("handle_token"), token);
    arguments.append(options);
    auto call = callOf(interface, method);
    call.setArguments(arguments);
    auto* const watcher =
        new QDBusPendingCallWatcher{request->bus_.asyncCall(call, kNoTimeout), request};
    connect(watcher, &QDBusPendingCallWatcher::finished, request, [request, watcher] {
        const QDBusPendingReply<QDBusObjectPath> reply = *watcher;
        if (reply.isError()) {
            request->finish(Answer::Failed);
        } else {
            // Old portals choose another path.
            request->listenTo(reply.value().path());
        }
    });
}

void Request::listenTo(const QString& path)
{
    if (path == path_) {
        return;
    }
    const auto service = QString::fromLatin1(kService);
    const auto interface = QStringLiteral("org.freedesktop.portal.Request");
    const auto signal = QStringLiteral("Response");
    if (!path_.isEmpty()) {
        bus_.disconnect(service, path_, interface, signal, this, SLOT(respond(uint, QVariantMap)));
    }
    path_ = path;
    bus_.connect(service, path_, interface, signal, this, SLOT(respond(uint, QVariantMap)));
}

void Request::respond(uint response, const QVariantMap& results)
{
    finish(response == 0   ? Answer::Done
           : response == 1 ? Answer::Cancelled
                           : Answer::Failed,
           results);
}

void Request::finish(Answer answer, const QVariantMap& results)
{
    if (const auto answered = std::exchange(answered_, {})) {
        answered(answer, results);
        deleteLater();
    }
}

} // namespace lumora::qt::portal
