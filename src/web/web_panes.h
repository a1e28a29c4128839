// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/split_view_controller.h"
#include "platform/screens/visibility_tracker.h"
#include "web/outbox.h"
#include "web/screen_states.h"

#include <memory>
#include <vector>

namespace lumora::detail {
class VerbDetailTableViewController;
}

namespace lumora::platform {
class NavigationController;
}

namespace lumora::web {

class WebPresenter;

/// The stacks of screens in the panes and over them: hears how they change, and
/// tells the screens when they come and go.
class WebPanes {
public:
    /// The presenter must outlive this.
    WebPanes(std::shared_ptr<platform::SplitViewController> split, const WebPresenter& presenter);
    ~WebPanes();
    WebPanes(const WebPanes&) = delete;
    WebPanes& operator=(const WebPanes&) = delete;

    /// The first call shows the screens.
    void setWidth(double points);
    /// Takes the top screen away; false when there is none to go back from.
    bool back() const;
    /// The screens changed, or what they show inside them.
    void synchronize();
    /// All that is on show.
    Json describe();

    std::shared_ptr<platform::ViewController> screen(int number) const
    {
        return states_.screen(number);
    }

private:
    using Screens = std::vector<std::shared_ptr<platform::ViewController>>;

    Screens screensOf(const std::shared_ptr<platform::ViewController>& container);
    Screens flatten(platform::NavigationController& stack);
    Screens paneAt(std::size_t pane);
    Json describe(const Screens& screens, std::int64_t openVerb);

    std::shared_ptr<platform::SplitViewController> split_;
    const WebPresenter& presenter_;
    ScreenStates states_;
    platform::VisibilityTracker visibility_;
    std::vector<std::weak_ptr<platform::ViewController>> listened_;
    bool shown_ = false;
    bool changing_ = false;
};

} // namespace lumora::web
