// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>
#include <functional>

namespace lumora::platform {

/// The wall clock and work for later, so that tests decide what time it is.
class Clock {
public:
    virtual ~Clock() = default;
    /// Seconds with fraction since 1970-01-01 00:00:00 UTC.
    virtual double secondsSince1970() const = 0;
    /// Runs `work` once on the GUI thread after `delay`.
    virtual void runLater(std::chrono::milliseconds delay, std::function<void()> work) = 0;
};

/// 2001-01-01 00:00:00 UTC, from which the history counts its seconds.
inline constexpr double kReferenceDate = 978307200.0;

} // namespace lumora::platform
