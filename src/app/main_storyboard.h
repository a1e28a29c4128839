// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/services.h"
#include "platform/screens/storyboard.h"

#include <memory>

namespace lumora::platform {
class SplitViewController;
}

namespace lumora::app {

/// Knows which screens there are and which screen each step leads to.
class MainStoryboard final : public platform::Storyboard {
public:
    /// The services name this storyboard, so they come after it. Must be
    /// called before a screen is asked for. They must outlive the storyboard's
    /// screens.
    void setServices(const platform::Services& services);

    /// The window's root: list and detail side by side, the home screen and an
    /// empty detail screen in them.
    std::shared_ptr<platform::SplitViewController> instantiateInitialViewController();

    std::shared_ptr<platform::ViewController>
    instantiateViewController(std::string_view identifier) override;
    std::shared_ptr<platform::ViewController>
    instantiateDestination(std::string_view segueIdentifier) override;
    platform::SegueStyle segueStyle(std::string_view segueIdentifier) const override;

private:
    const platform::Services* services_ = nullptr;
};

} // namespace lumora::app
