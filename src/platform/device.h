// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <vector>

namespace lumora::platform {

/// The machine and its user, as far as the logic cares.
class Device {
public:
    virtual ~Device() = default;

    /// Language tags such as "de-CH", the most wanted first; never empty.
    virtual std::vector<std::string> preferredLanguages() const = 0;
    /// True where two panes fit.
    virtual bool isTablet() const = 0;
    /// Whether the application's window is in front of the user.
    virtual bool hasActiveScene() const = 0;
    virtual std::vector<std::string> launchArguments() const = 0;
};

} // namespace lumora::platform
