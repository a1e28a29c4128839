// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/desktop/stand_in_portal.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>

#include <gtest/gtest.h>

#include <utility>

namespace lumora::support {

namespace {

const QString kService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kSettings = QStringLiteral("org.freedesktop.portal.Settings");

} // namespace

class StandInPortal::Object final : public QDBusVirtualObject {
public:
    explicit Object(Behaviour behaviour) : behaviour_{std::move(behaviour)} {}

    QString introspect(const QString& /*path*/) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        if (message.member() == QLatin1String("Get")) {
            return getVersion(message, connection);
        }
        if (message.interface() == kSettings) {
            const std::lock_guard lock{mutex_};
            return connection.send(message.createReply(QVariant::fromValue(behaviour_.settings)));
        }
        return serveRequest(message, connection);
    }

    std::vector<Call> requests() const
    {
        const std::lock_guard lock{mutex_};
        return requests_;
    }

private:
    bool getVersion(const QDBusMessage& message, const QDBusConnection& connection) const
    {
        const auto version = behaviour_.versions.find(message.arguments().value(0).toString());
        if (version == behaviour_.versions.end()) {
            return connection.send(
                message.createErrorReply(QDBusError::UnknownInterface, QStringLiteral("no")));
        }
        return connection.send(message.createReply(QVariant::fromValue(QDBusVariant{*version})));
    }

    bool serveRequest(const QDBusMessage& message, const QDBusConnection& connection)
    {
        auto arguments = message.arguments();
        const auto options = qdbus_cast<QVariantMap>(arguments.takeLast());
        {
            const std::lock_guard lock{mutex_};
            requests_.push_back({message.member(), arguments, options});
        }
        auto sender = message.service().mid(1);
        sender.replace(QLatin1Char('.'), QLatin1Char('_'));
        const auto token = behaviour_.choosesPaths
                               ? QStringLiteral("t1")
                               : options.value(QStringLiteral("handle_token")).toString();
        const auto path = QStringLiteral("%1/request/%2/%3").arg(kPath, sender, token);
        auto response = QDBusMessage::createSignal(
            path, QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Response"));
        response << behaviour_.response.value_or(0) << behaviour_.results;
        const auto reply = message.createReply(QVariant::fromValue(QDBusObjectPath{path}));
        if (behaviour_.choosesPaths) {
            connection.send(reply);
            // Nobody could hear it earlier.
            QThread::msleep(200);
            return connection.send(response);
        }
        // An answer may well be quicker than the reply.
        return (!behaviour_.response || connection.send(response)) && connection.send(reply);
    }

    mutable std::mutex mutex_;
    Behaviour behaviour_;
    std::vector<Call> requests_;
};

StandInPortal::StandInPortal(MessageBus& bus, Behaviour behaviour)
    : connection_{bus.connect()}, object_{std::make_unique<Object>(std::move(behaviour))}
{
    qDBusRegisterMetaType<QMap<QString, QVariantMap>>();
    object_->moveToThread(&thread_);
    thread_.start();
    EXPECT_TRUE(connection_.registerVirtualObject(kPath, object_.get()));
    EXPECT_TRUE(connection_.registerService(kService));
}

StandInPortal::~StandInPortal()
{
    connection_.unregisterService(kService);
    connection_.unregisterObject(kPath);
    thread_.quit();
    thread_.wait();
}

std::vector<StandInPortal::Call> StandInPortal::requests() const
{
    return object_->requests();
}

void StandInPortal::changeSetting(const QString& group, const QString& key, const QVariant& value)
{
    auto change = QDBusMessage::createSignal(kPath, kSettings, QStringLiteral("SettingChanged"));
    change << group << key << QVariant::fromValue(QDBusVariant{value});
    connection_.send(change);
}

} // namespace lumora::support
