// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/split_view_controller.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

namespace lumora::platform {

class NavigationController;

/// The stacks of screens in the panes, for what draws them: which screens lie in
/// each, and whether one of the stacks has changed. GUI thread only.
class PaneStacks {
public:
    using Screens = std::vector<std::shared_ptr<ViewController>>;

    /// `changed` is called after every change of the panes and of each stack that
    /// was read since the last call of begin().
    PaneStacks(std::shared_ptr<SplitViewController> split, std::function<void()> changed);
    ~PaneStacks();
    PaneStacks(const PaneStacks&) = delete;
    PaneStacks& operator=(const PaneStacks&) = delete;

    SplitViewController& split() const { return *split_; }

    /// The stacks are read anew.
    void begin() { heard_.clear(); }
    /// From the bottom of a pane's stack to its top; none where there is no such pane.
    Screens pane(std::size_t pane);
    /// The screens of a stack, or the screen itself.
    Screens screensOf(const std::shared_ptr<ViewController>& container);

    /// Takes the top screen away; false when there is none to go back from.
    bool back() const;
    /// Brings the screen at the bottom of the first pane into view, whatever hides it.
    void backToHome() const;

private:
    Screens flatten(NavigationController& stack);

    std::shared_ptr<SplitViewController> split_;
    std::function<void()> changed_;
    std::vector<std::weak_ptr<ViewController>> heard_;
};

} // namespace lumora::platform
