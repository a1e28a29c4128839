// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/machine/analytics.h"
#include "platform/machine/clock.h"

#include <cstddef>
#include <filesystem>

namespace lumora::platform {

/// One line of JSON an event ("time", "event", "parameters") in
/// "analytics.jsonl" of the state folder, at most kMaximumBytes (the oldest half
/// goes first). Whether to collect stands in "analytics.json" of the
/// configuration folder, where clearing the state does not lose a refusal. A
/// folder that cannot be written, or a damaged flag file, loses events and
/// nothing else.
class LocalAnalytics final : public Analytics {
public:
    /// Version 1.0.0 kept the flag in the state folder; it is taken over.
    LocalAnalytics(std::filesystem::path stateFolder, std::filesystem::path configFolder,
                   const Clock& clock);

    void logEvent(std::string_view name,
                  const std::map<std::string, std::string>& parameters) override;
    void setAnalyticsCollectionEnabled(bool enabled) override;

    static constexpr std::size_t kMaximumBytes = std::size_t{256} * 1024;

private:
    void takeOverOldFlag();

    std::filesystem::path stateFolder_;
    std::filesystem::path configFolder_;
    const Clock& clock_;
    bool enabled_ = true;
};

} // namespace lumora::platform
