// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/screens/pane_stacks.h"

#include "platform/screens/navigation_controller.h"

#include <algorithm>
#include <utility>

namespace lumora::platform {

namespace {

bool popOne(NavigationController* stack)
{
    if (stack == nullptr) {
        return false;
    }
    // The detail of a single pane is a stack inside the stack.
    return popOne(dynamic_cast<NavigationController*>(stack->topViewController())) ||
           stack->popViewController() != nullptr;
}

} // namespace

PaneStacks::PaneStacks(std::shared_ptr<SplitViewController> split, std::function<void()> changed)
    : split_{std::move(split)}, changed_{std::move(changed)}
{
    split_->setPaneListener(changed_);
}

PaneStacks::~PaneStacks()
{
    split_->setPaneListener({});
    for (const auto& weak : heard_) {
        if (const auto stack = std::dynamic_pointer_cast<NavigationController>(weak.lock())) {
            stack->setStackListener({});
        }
    }
    for (auto* pane : split_->viewControllers()) {
        if (auto* stack = dynamic_cast<NavigationController*>(pane)) {
            stack->setStackListener({});
        }
    }
}

PaneStacks::Screens PaneStacks::pane(std::size_t pane)
{
    const auto panes = split_->viewControllers();
    auto* stack = pane < panes.size() ? dynamic_cast<NavigationController*>(panes[pane]) : nullptr;
    return stack == nullptr ? Screens{} : flatten(*stack);
}

PaneStacks::Screens PaneStacks::screensOf(const std::shared_ptr<ViewController>& container)
{
    const auto stack = std::dynamic_pointer_cast<NavigationController>(container);
    if (stack == nullptr) {
        return {container};
    }
    heard_.push_back(stack);
    return flatten(*stack);
}

PaneStacks::Screens PaneStacks::flatten(NavigationController& stack)
{
    stack.setStackListener(changed_);
    Screens screens;
    for (const auto& controller : stack.viewControllers()) {
        const auto within = screensOf(controller);
        screens.insert(screens.end(), within.begin(), within.end());
    }
    return screens;
}

bool PaneStacks::back() const
{
    auto panes = split_->viewControllers();
    std::reverse(panes.begin(), panes.end());
    return std::any_of(panes.begin(), panes.end(), [](auto* pane) {
        return popOne(dynamic_cast<NavigationController*>(pane));
    });
}

void PaneStacks::backToHome() const
{
    if (auto* lists = dynamic_cast<NavigationController*>(split_->viewControllers().front())) {
        lists->popToRootViewController();
    }
    if (!split_->isCollapsed() && split_->isPrimaryHidden()) {
        split_->displayModeButtonItem().action();
    }
}

} // namespace lumora::platform
