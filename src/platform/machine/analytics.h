// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <map>
#include <string>
#include <string_view>

namespace lumora::platform {

/// Counts what is used. Nothing leaves the machine.
class Analytics {
public:
    virtual ~Analytics() = default;
    virtual void logEvent(std::string_view name,
                          const std::map<std::string, std::string>& parameters) = 0;
    /// Kept over restarts by the analytics itself; on at first.
    virtual void setAnalyticsCollectionEnabled(bool enabled) = 0;
};

} // namespace lumora::platform
