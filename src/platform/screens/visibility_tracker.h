// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/view_controller.h"

#include <memory>
#include <vector>

namespace lumora::platform {

/// Tells screens when they come and go. The window says after every change
/// which screens are on show; those gone hear of it first, then each new one
/// is loaded and told. GUI thread only.
class VisibilityTracker {
public:
    using Screens = std::vector<std::shared_ptr<ViewController>>;

    /// May be called by a screen that is just being told: its turn comes when
    /// the calls under way are done.
    void setVisible(Screens visible);

private:
    void change(const Screens& visible);

    /// Not owned: a screen may be destroyed while it is listed here.
    std::vector<std::weak_ptr<ViewController>> visible_;
    Screens next_;
    bool waiting_ = false;
    bool telling_ = false;
};

} // namespace lumora::platform
