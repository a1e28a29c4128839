// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
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

    /// What the machine is sold as, for example "ThinkPad X13".
    virtual std::string modelName() const = 0;
    /// The hardware's own name; none when it cannot be found out.
    virtual std::optional<std::string> machineIdentifier() const = 0;
    /// The operating system with its version.
    virtual std::string systemVersion() const = 0;
    /// The two letters of the country whose customs the user keeps, in upper
    /// case, for example "DE"; empty where nobody can tell.
    virtual std::string regionCode() const = 0;
};

} // namespace lumora::platform
