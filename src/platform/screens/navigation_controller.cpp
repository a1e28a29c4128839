// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/screens/navigation_controller.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace lumora::platform {

NavigationController::NavigationController(std::shared_ptr<ViewController> root)
{
    assert(root != nullptr);
    adopt(*stack_.emplace_back(std::move(root)));
}

NavigationController::~NavigationController()
{
    for (const auto& controller : stack_) {
        release(*controller);
    }
}

ViewController* NavigationController::topViewController() const
{
    return stack_.empty() ? nullptr : stack_.back().get();
}

void NavigationController::pushViewController(std::shared_ptr<ViewController> controller)
{
    assert(controller != nullptr);
    // A local copy: loading may change the stack.
    const auto pushed = stack_.emplace_back(std::move(controller));
    adopt(*pushed);
    pushed->loadViewIfNeeded();
    stackChanged();
}

std::shared_ptr<ViewController> NavigationController::popViewController()
{
    if (stack_.size() < 2) {
        return nullptr;
    }
    auto popped = std::move(stack_.back());
    stack_.pop_back();
    stackChanged();
    release(*popped);
    return popped;
}

void NavigationController::popToRootViewController()
{
    if (stack_.size() > 1) {
        setViewControllers({stack_.front()});
    }
}

void NavigationController::setViewControllers(
    std::vector<std::shared_ptr<ViewController>> controllers)
{
    const auto before = std::exchange(stack_, std::move(controllers));
    const auto now = stack_;
    for (const auto& controller : now) {
        adopt(*controller);
    }
    if (!now.empty()) {
        now.back()->loadViewIfNeeded();
    }
    stackChanged();
    for (const auto& controller : before) {
        if (std::find(now.begin(), now.end(), controller) == now.end()) {
            release(*controller);
        }
    }
}

void NavigationController::setStackListener(std::function<void()> listener)
{
    stackListener_ = std::move(listener);
}

void NavigationController::setSplitViewController(SplitViewController* splitView)
{
    ViewController::setSplitViewController(splitView);
    for (const auto& controller : stack_) {
        controller->setSplitViewController(splitView);
    }
}

void NavigationController::adopt(ViewController& controller)
{
    controller.setNavigationController(this);
    controller.setSplitViewController(splitViewController());
}

void NavigationController::release(ViewController& controller)
{
    // It may be on another stack by now.
    if (controller.navigationController() == this) {
        controller.setNavigationController(nullptr);
        controller.setSplitViewController(nullptr);
    }
}

void NavigationController::stackChanged()
{
    if (stackListener_) {
        stackListener_();
    }
}

} // namespace lumora::platform
