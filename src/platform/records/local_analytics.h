// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/machine/analytics.h"
#include "platform/machine/clock.h"

#include <cstddef>
#include <filesystem>

namespace lumora::platform {

/// One line of JSON an event ("time", "event", "parameters") in
/// "analytics.jsonl", at most kMaximumBytes (the oldest half goes first), and
/// the collection flag in "analytics.json" beside it. A folder that cannot be
/// written, or a damaged flag file, loses events and nothing else.
class LocalAnalytics final : public Analytics {
public:
    LocalAnalytics(std::filesystem::path folder, const Clock& clock);

    void logEvent(std::string_view name,
                  const std::map<std::string, std::string>& parameters) override;
    void setAnalyticsCollectionEnabled(bool enabled) override;

    static constexpr std::size_t kMaximumBytes = std::size_t{256} * 1024;

private:
    std::filesystem::path folder_;
    const Clock& clock_;
    bool enabled_ = true;
};

} // namespace lumora::platform
