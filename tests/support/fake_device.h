// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/machine/device.h"

#include <optional>
#include <string>
#include <vector>

namespace lumora::support {

class FakeDevice final : public platform::Device {
public:
    std::vector<std::string> preferredLanguages() const override { return languages; }
    bool isTablet() const override { return tablet; }
    bool hasActiveScene() const override { return activeScene; }
    std::vector<std::string> launchArguments() const override { return arguments; }

    std::string modelName() const override { return model; }
    std::optional<std::string> machineIdentifier() const override { return machine; }
    std::string systemVersion() const override { return system; }
    std::string regionCode() const override { return region; }

    std::vector<std::string> languages = {"en-GB"};
    bool tablet = false;
    bool activeScene = true;
    std::vector<std::string> arguments;
    std::string model = "Slate 10";
    std::optional<std::string> machine = "aarch64";
    std::string system = "Debian 12";
    std::string region = "DE";
};

} // namespace lumora::support
