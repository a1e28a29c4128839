// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/desktop/message_bus.h"

#include "qt/base/text_conversion.h"

#include <QUuid>

#include <gtest/gtest.h>

namespace lumora::support {

namespace {

constexpr const char* kConfiguration = R"(<busconfig>
  <type>session</type>
  <listen>unix:dir=%1</listen>
  <servicedir>%1</servicedir>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>)";

} // namespace

MessageBus::MessageBus()
{
    const auto folder = qt::toQString(folder_.path().string());
    writeContent(folder_ / "bus.conf", qt::toUtf8(QString::fromLatin1(kConfiguration).arg(folder)));
    daemon_.start(QStringLiteral("dbus-daemon"),
                  {QStringLiteral("--config-file=%1/bus.conf").arg(folder),
                   QStringLiteral("--nofork"), QStringLiteral("--print-address")});
    while (!daemon_.canReadLine() && daemon_.waitForReadyRead()) {
    }
    address_ = QString::fromLatin1(daemon_.readLine()).trimmed();
    EXPECT_FALSE(address_.isEmpty()) << daemon_.readAllStandardError().toStdString();
}

MessageBus::~MessageBus()
{
    for (const auto& name : connections_) {
        QDBusConnection::disconnectFromBus(name);
    }
    daemon_.terminate();
    daemon_.waitForFinished();
}

void MessageBus::offer(const QString& name, const QString& command)
{
    const auto service = QStringLiteral("[D-BUS Service]\nName=%1\nExec=%2\n").arg(name, command);
    writeContent(folder_ / (qt::toUtf8(name) + ".service"), qt::toUtf8(service));
}

QDBusConnection MessageBus::connect()
{
    connections_.append(QUuid::createUuid().toString());
    return QDBusConnection::connectToBus(address_, connections_.last());
}

} // namespace lumora::support
