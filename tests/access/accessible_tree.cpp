// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "access/accessible_tree.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusReply>
#include <QDBusVariant>
#include <QFutureWatcher>
#include <QSignalSpy>
#include <QtConcurrentRun>

#include <gtest/gtest.h>

#include <utility>

namespace lumora::support {

namespace {

constexpr int kAnswerTime = 2000;
constexpr int kReadingTime = 60000;
constexpr int kDeepest = 60;

/// An object of the tree: whose it is, and its path.
using Reference = std::pair<QString, QDBusObjectPath>;

const QString kAccessible = QStringLiteral("org.a11y.atspi.Accessible");

/// Reads the tree on a thread of its own.
class Reader {
public:
    explicit Reader(const QString& address)
        : bus_{QDBusConnection::connectToBus(address, QStringLiteral("reader"))}
    {}
    ~Reader() { QDBusConnection::disconnectFromBus(QStringLiteral("reader")); }

    std::vector<Accessible> read()
    {
        const Reference registry{QStringLiteral("org.a11y.atspi.Registry"),
                                 QDBusObjectPath{"/org/a11y/atspi/accessible/root"}};
        for (const auto& program : childrenOf(registry)) {
            for (const auto& window : childrenOf(program)) {
                add(window, 0);
            }
        }
        return std::move(found_);
    }

private:
    QVariantList ask(const Reference& object, const QString& interface, const QString& method,
                     const QVariantList& arguments = {}) const
    {
        auto call =
            QDBusMessage::createMethodCall(object.first, object.second.path(), interface, method);
        call.setArguments(arguments);
        const auto reply = bus_.call(call, QDBus::Block, kAnswerTime);
        EXPECT_EQ(reply.type(), QDBusMessage::ReplyMessage)
            << method.toStdString() << ": " << reply.errorMessage().toStdString();
        return reply.arguments();
    }
    QVariant property(const Reference& object, const QString& interface, const QString& name) const
    {
        return ask(object, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"),
                   {interface, name})
            .value(0)
            .value<QDBusVariant>()
            .variant();
    }
    QList<Reference> childrenOf(const Reference& object) const
    {
        return qdbus_cast<QList<Reference>>(
            ask(object, kAccessible, QStringLiteral("GetChildren")).value(0));
    }

    void add(const Reference& object, int depth)
    {
        Accessible accessible;
        const auto states =
            qdbus_cast<QList<uint>>(ask(object, kAccessible, QStringLiteral("GetState")).value(0));
        accessible.states = states.value(0) | quint64{states.value(1)} << 32;
        if (depth > kDeepest || !accessible.is(Accessible::Visible)) {
            return;
        }
        accessible.role =
            ask(object, kAccessible, QStringLiteral("GetRoleName")).value(0).toString();
        accessible.name = property(object, kAccessible, QStringLiteral("Name")).toString();
        constexpr uint kWindowCoordinates = 1;
        accessible.area = qdbus_cast<QRect>(ask(object, QStringLiteral("org.a11y.atspi.Component"),
                                                QStringLiteral("GetExtents"), {kWindowCoordinates})
                                                .value(0));
        found_.push_back(accessible);
        for (const auto& child : childrenOf(object)) {
            add(child, depth + 1);
        }
    }

    QDBusConnection bus_;
    std::vector<Accessible> found_;
};

QString accessibilityBus()
{
    const auto call = QDBusMessage::createMethodCall(
        QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
        QStringLiteral("org.a11y.Bus"), QStringLiteral("GetAddress"));
    const QDBusReply<QString> address =
        QDBusConnection::sessionBus().call(call, QDBus::Block, kAnswerTime);
    EXPECT_TRUE(address.isValid()) << address.error().message().toStdString();
    return address.value();
}

} // namespace

std::vector<Accessible> accessibleTree()
{
    QFutureWatcher<std::vector<Accessible>> reading;
    QSignalSpy end{&reading, &QFutureWatcherBase::finished};
    reading.setFuture(
        QtConcurrent::run([address = accessibilityBus()] { return Reader{address}.read(); }));
    EXPECT_TRUE(end.wait(kReadingTime));
    return reading.result();
}

} // namespace lumora::support
