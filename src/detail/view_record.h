// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/base/error.h"

#include <cstdint>

namespace lumora::platform {
class Clock;
class Database;
class Device;
class ReviewPrompter;
class SettingsStore;
} // namespace lumora::platform

namespace lumora::detail {

/// Records that a verb was shown: in the count that decides when a review is
/// asked for, and in the history. What the constructor takes must outlive the
/// object.
class ViewRecord {
public:
    ViewRecord(platform::SettingsStore& settings, const platform::Device& device,
               const platform::Clock& clock, platform::ReviewPrompter& reviewPrompter);

    /// Asks for a review once, at the 21st view or the first one after it. A
    /// process started with "ui_test" neither counts nor asks.
    void countView() const;

    /// Does nothing where the history is switched off. The connection knows
    /// why it failed.
    platform::Result<void> recordHistory(platform::Database& database, std::int64_t verbId) const;

private:
    platform::SettingsStore& settings_;
    const platform::Device& device_;
    const platform::Clock& clock_;
    platform::ReviewPrompter& reviewPrompter_;
};

} // namespace lumora::detail
