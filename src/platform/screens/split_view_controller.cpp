// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/screens/split_view_controller.h"

#include <cassert>
#include <utility>

namespace lumora::platform {

SplitViewController::SplitViewController(std::shared_ptr<ViewController> primary,
                                         std::shared_ptr<ViewController> secondary)
    : primary_(std::move(primary)), secondary_(std::move(secondary)), placeholder_(secondary_)
{
    assert(primary_ != nullptr && secondary_ != nullptr);
    primary_->setSplitViewController(this);
    secondary_->setSplitViewController(this);
}

SplitViewController::~SplitViewController()
{
    for (const auto& pane : {primary_, secondary_, placeholder_}) {
        if (pane != nullptr) {
            pane->setSplitViewController(nullptr);
        }
    }
}

std::vector<ViewController*> SplitViewController::viewControllers() const
{
    if (collapsed_) {
        return {primary_.get()};
    }
    return {primary_.get(), secondary_.get()};
}

void SplitViewController::setCollapsed(bool collapsed)
{
    if (collapsed == collapsed_) {
        return;
    }
    NavigationController* const stack = primaryStack();
    if (collapsed) {
        const bool dropped =
            stack == nullptr ||
            (delegate_ != nullptr &&
             delegate_->collapseSecondaryViewControllerOntoPrimary(*secondary_, *primary_));
        auto detail = std::exchange(secondary_, nullptr);
        collapsed_ = true;
        if (!dropped) {
            stack->pushViewController(std::move(detail));
        } else if (detail != placeholder_) {
            detail->setSplitViewController(nullptr);
        }
    } else {
        // The stack tells its listener of every step, so the panes are right
        // before the first.
        collapsed_ = false;
        secondary_ = placeholder_;
        bool found = false;
        while (stack != nullptr && stack->viewControllers().size() > 1 &&
               dynamic_cast<NavigationController*>(stack->topViewController()) != nullptr) {
            // Of several details opened over each other the last one shows.
            if (!std::exchange(found, true)) {
                secondary_ = stack->viewControllers().back();
            }
            stack->popViewController();
        }
        secondary_->setSplitViewController(this);
    }
    panesChanged();
}

void SplitViewController::showDetailViewController(std::shared_ptr<ViewController> detail)
{
    assert(detail != nullptr);
    if (collapsed_) {
        if (NavigationController* const stack = primaryStack()) {
            stack->pushViewController(std::move(detail));
        }
        return;
    }
    const auto replaced = std::exchange(secondary_, std::move(detail));
    secondary_->setSplitViewController(this);
    secondary_->loadViewIfNeeded();
    panesChanged();
    if (replaced != secondary_ && replaced != placeholder_) {
        replaced->setSplitViewController(nullptr);
    }
}

BarButton SplitViewController::displayModeButtonItem()
{
    return {.identifier = "displayMode",
            .title = {},
            .image = "sidebar",
            .enabled = true,
            .action = [this] {
                if (!collapsed_) {
                    primaryHidden_ = !primaryHidden_;
                    panesChanged();
                }
            }};
}

void SplitViewController::setPaneListener(std::function<void()> listener)
{
    paneListener_ = std::move(listener);
}

NavigationController* SplitViewController::primaryStack() const
{
    return dynamic_cast<NavigationController*>(primary_.get());
}

void SplitViewController::panesChanged()
{
    if (paneListener_) {
        paneListener_();
    }
}

} // namespace lumora::platform
