// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/view_controller.h"

#include <functional>
#include <memory>
#include <vector>

namespace lumora::platform {

/// A stack of screens, of which the top one shows.
class NavigationController final : public ViewController {
public:
    explicit NavigationController(std::shared_ptr<ViewController> root);

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
    void stackChanged();

    std::vector<std::shared_ptr<ViewController>> stack_;
    std::function<void()> stackListener_;
};

} // namespace lumora::platform
