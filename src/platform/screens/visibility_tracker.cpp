// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/screens/visibility_tracker.h"

#include <algorithm>
#include <utility>

namespace lumora::platform {

void VisibilityTracker::setVisible(Screens visible)
{
    next_ = std::move(visible);
    waiting_ = true;
    if (telling_) {
        return;
    }
    telling_ = true;
    while (std::exchange(waiting_, false)) {
        change(std::exchange(next_, {}));
    }
    telling_ = false;
}

void VisibilityTracker::change(const Screens& visible)
{
    Screens before;
    for (const auto& known : visible_) {
        if (auto screen = known.lock()) {
            before.push_back(std::move(screen));
        }
    }
    visible_.assign(visible.begin(), visible.end());

    const auto isIn = [](const Screens& screens, const auto& screen) {
        return std::find(screens.begin(), screens.end(), screen) != screens.end();
    };
    for (const auto& screen : before) {
        if (!isIn(visible, screen)) {
            screen->viewDidDisappear();
        }
    }
    for (const auto& screen : visible) {
        if (screen != nullptr && !isIn(before, screen)) {
            screen->loadViewIfNeeded();
            screen->viewWillAppear();
            screen->viewDidAppear();
        }
    }
}

} // namespace lumora::platform
