// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/device.h"

#include <string>
#include <vector>

namespace lumora::support {

class FakeDevice final : public platform::Device {
public:
    std::vector<std::string> preferredLanguages() const override { return languages; }
    bool isTablet() const override { return tablet; }
    bool hasActiveScene() const override { return activeScene; }
    std::vector<std::string> launchArguments() const override { return arguments; }

    std::vector<std::string> languages = {"en-GB"};
    bool tablet = false;
    bool activeScene = true;
    std::vector<std::string> arguments;
};

} // namespace lumora::support
