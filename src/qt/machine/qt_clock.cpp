// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/machine/qt_clock.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QTimer>

#include <utility>

namespace lumora::qt {

double QtClock::secondsSince1970() const
{
    return static_cast<double>(QDateTime::currentMSecsSinceEpoch()) / 1000.0;
}

void QtClock::runLater(std::chrono::milliseconds delay, std::function<void()> work)
{
    QTimer::singleShot(delay, QCoreApplication::instance(), std::move(work));
}

} // namespace lumora::qt
