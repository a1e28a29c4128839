// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "support/temporary_folder.h"

#include <QDBusConnection>
#include <QProcess>
#include <QString>
#include <QStringList>

namespace lumora::support {

/// A message bus that nobody else is on, for as long as this lives.
class MessageBus {
public:
    MessageBus();
    ~MessageBus();

    const QString& address() const { return address_; }
    /// The bus starts that command when somebody calls the name.
    void offer(const QString& name, const QString& command);
    /// A connection of its own, closed when the bus goes.
    QDBusConnection connect();

private:
    TemporaryFolder folder_;
    QProcess daemon_;
    QString address_;
    QStringList connections_;
};

} // namespace lumora::support
