// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/pane_stacks.h"
#include "platform/screens/visibility_tracker.h"
#include "web/outbox.h"
#include "web/screen_states.h"

#include <memory>

namespace lumora::web {

class WebPresenter;

/// The stacks of screens in the panes and over them: hears how they change, and
/// tells the screens when they come and go.
class WebPanes {
public:
    /// The presenter must outlive this.
    WebPanes(std::shared_ptr<platform::SplitViewController> split, const WebPresenter& presenter);

    /// The first call shows the screens.
    void setWidth(double points);
    /// Takes the top screen away; false when there is none to go back from.
    bool back() const { return stacks_.back(); }
    /// Brings the home screen into view, whatever hides it.
    void backToHome() const { stacks_.backToHome(); }
    /// The screens changed, or what they show inside them.
    void synchronize();
    /// All that is on show.
    Json describe();

    std::shared_ptr<platform::ViewController> screen(int number) const
    {
        return states_.screen(number);
    }

private:
    using Screens = platform::PaneStacks::Screens;

    Json describe(const Screens& screens, std::int64_t openVerb, bool beside);

    const WebPresenter& presenter_;
    ScreenStates states_;
    platform::VisibilityTracker visibility_;
    bool shown_ = false;
    bool changing_ = false;
    /// The first to go: what goes after it is not to be drawn.
    platform::PaneStacks stacks_;
};

} // namespace lumora::web
