// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/machine/device.h"

#include <QStringList>

namespace lumora::qt {

/// The desktop and the program's window on it. Without a window it is a small
/// device with nothing in front.
class QtDevice final : public platform::Device {
public:
    explicit QtDevice(std::vector<std::string> launchArguments);

    std::vector<std::string> preferredLanguages() const override;
    bool isTablet() const override;
    bool hasActiveScene() const override { return sceneActive_; }
    std::vector<std::string> launchArguments() const override { return launchArguments_; }

    std::string modelName() const override;
    std::optional<std::string> machineIdentifier() const override;
    std::string systemVersion() const override;
    std::string regionCode() const override;

    /// Told by the window.
    void setWindowWidth(double points) { windowWidth_ = points; }
    void setSceneActive(bool active) { sceneActive_ = active; }

private:
    std::vector<std::string> launchArguments_;
    double windowWidth_ = 0;
    bool sceneActive_ = false;
};

} // namespace lumora::qt
