// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/view_controller.h"

#include <functional>
#include <memory>
#include <vector>

namespace lumora::platform {

/// A stack of screens, of which the top one shows.
class NavigationController : public ViewController {
public:
    explicit NavigationController(std::shared_ptr<ViewController> root);
    ~NavigationController() override;

    const std::vector<std::shared_ptr<ViewController>>& viewControllers() const { return stack_; }
    /// Null only when the stack was emptied by setViewControllers.
    ViewController* topViewController() const;

    void pushViewController(std::shared_ptr<ViewController> controller);
    /// The screen taken off; null when only the root is left.
    std::shared_ptr<ViewController> popViewController();
    void popToRootViewController();
    void setViewControllers(std::vector<std::shared_ptr<ViewController>> controllers);

    /// Called after every change of the stack; one listener.
    void setStackListener(std::function<void()> listener);

    void setSplitViewController(SplitViewController* splitView) override;

private:
    void adopt(ViewController& controller);
    void release(ViewController& controller);
    void stackChanged();

    std::vector<std::shared_ptr<ViewController>> stack_;
    std::function<void()> stackListener_;
};

/// The stack of a menu that slides in from the left edge.
class SideMenuNavigationController final : public NavigationController {
public:
    using NavigationController::NavigationController;
};

} // namespace lumora::platform
