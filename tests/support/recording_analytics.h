// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/machine/analytics.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace lumora::support {

class RecordingAnalytics final : public platform::Analytics {
public:
    struct Event {
        std::string name;
        std::map<std::string, std::string> parameters;
        bool operator==(const Event&) const = default;
    };

    void logEvent(std::string_view name,
                  const std::map<std::string, std::string>& parameters) override
    {
        events.push_back({std::string(name), parameters});
    }
    void setAnalyticsCollectionEnabled(bool enabled) override { collectionEnabled = enabled; }

    std::vector<Event> events;
    /// None until it was set.
    std::optional<bool> collectionEnabled;
};

} // namespace lumora::support
