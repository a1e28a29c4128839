// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "session/memory_watch.h"

#include <QCoreApplication>
#include <QQmlEngine>
#include <QQuickWindow>

#include <algorithm>
#include <sstream>

#include <malloc.h>

namespace lumora::session {

namespace {

/// Fewer say nothing.
constexpr std::size_t kFewest = 16;
constexpr double kGrowth = 1.01;
constexpr double kBytesInMegabyte = 1024.0 * 1024.0;

} // namespace

void MemoryWatch::look(QQuickWindow& window, std::uint64_t action)
{
    if (action < kWarmActions) {
        return;
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    qmlEngine(&window)->collectGarbage();
    megabytes_.push_back(megabytesInUse());
}

bool MemoryWatch::isCounted() const
{
    return megabytes_.size() >= kFewest && megabytes_.front() > 0;
}

double MemoryWatch::megabytesInQuarter(std::size_t quarter) const
{
    const auto length = megabytes_.size() / 4;
    const auto begin = megabytes_.begin() + static_cast<std::ptrdiff_t>(quarter * length);
    std::vector<double> part{begin, begin + static_cast<std::ptrdiff_t>(length)};
    std::sort(part.begin(), part.end());
    return part[part.size() / 2];
}

bool MemoryWatch::grows() const
{
    if (!isCounted()) {
        return false;
    }
    for (std::size_t quarter = 1; quarter < 4; ++quarter) {
        if (megabytesInQuarter(quarter) < kGrowth * megabytesInQuarter(quarter - 1)) {
            return false;
        }
    }
    return true;
}

double MemoryWatch::megabytesInUse()
{
    const auto all = ::mallinfo2();
    return static_cast<double>(all.uordblks + all.hblkhd) / kBytesInMegabyte;
}

std::string MemoryWatch::summary() const
{
    std::ostringstream text;
    if (!isCounted()) {
        text << "Memory was not compared.";
    } else {
        text << "Memory in use at home, by quarters of the session after action " << kWarmActions
             << ":";
        for (std::size_t quarter = 0; quarter < 4; ++quarter) {
            text << ' ' << megabytesInQuarter(quarter) << " MB";
        }
        text << (grows() ? ". It grows." : ".");
    }
    return text.str();
}

} // namespace lumora::session
