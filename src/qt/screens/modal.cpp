// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/screens/modal.h"

#include "platform/screens/navigation_controller.h"

#include <QQmlEngine>

#include <algorithm>
#include <ranges>
#include <utility>

namespace lumora::qt {

using platform::NavigationController;
using platform::ViewController;

Modal::Modal(std::shared_ptr<ViewController> controller, platform::SegueStyle style)
    : controller_{std::move(controller)}, style_{style}
{
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
}

bool Modal::holds(const ViewController& screen) const
{
    if (controller_.get() == &screen) {
        return true;
    }
    const auto* stack = dynamic_cast<const NavigationController*>(controller_.get());
    return stack != nullptr && std::ranges::any_of(stack->viewControllers(), [&](const auto& each) {
               return each.get() == &screen;
           });
}

void Modal::setScreens(QList<QObject*> screens)
{
    if (screens != screens_) {
        screens_ = std::move(screens);
        emit screensChanged();
    }
}

void Modal::leave(Completion completed)
{
    if (completed) {
        completions_.push_back(std::move(completed));
    }
    if (std::exchange(leaving_, true)) {
        return;
    }
    emit leavingChanged();
    if (!attached_) {
        emit gone();
    }
}

std::vector<Modal::Completion> Modal::takeCompletions()
{
    return std::exchange(completions_, {});
}

void Modal::close()
{
    if (leaving_) {
        return;
    }
    auto* stack = dynamic_cast<NavigationController*>(controller_.get());
    if (stack != nullptr && stack->popViewController() != nullptr) {
        return;
    }
    const auto* top = stack == nullptr ? controller_.get() : stack->topViewController();
    // A copy: the action may change the bar.
    const auto buttons = top->navigationItem().rightBarButtons;
    const auto done = std::ranges::find(buttons, "done", &platform::BarButton::identifier);
    if (done == buttons.end()) {
        emit dismissRequested();
    } else if (done->enabled && done->action) {
        done->action();
    }
}

void Modal::finish()
{
    if (leaving_) {
        emit gone();
    }
}

} // namespace lumora::qt
