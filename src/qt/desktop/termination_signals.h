// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/files/file_descriptor.h"

#include <QObject>
#include <QSocketNotifier>

#include <optional>

namespace lumora::qt {

/// Turns SIGTERM, SIGINT and SIGHUP into a call from the event loop, so that
/// the program ends in order. A second one ends it at once. One per process.
class TerminationSignals final : public QObject {
    Q_OBJECT

public:
    TerminationSignals();
    ~TerminationSignals() override;

signals:
    void received();

private:
    platform::FileDescriptor reader_;
    platform::FileDescriptor writer_;
    std::optional<QSocketNotifier> notifier_;
};

} // namespace lumora::qt
