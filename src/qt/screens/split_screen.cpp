// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/screens/split_screen.h"

#include "platform/screens/navigation_controller.h"
#include "qt/machine/qt_device.h"
#include "qt/screens/home_screen.h"
#include "qt/screens/modal_stack.h"
#include "qt/screens/qt_preview.h"

#include <algorithm>
#include <ranges>
#include <utility>

namespace lumora::qt {

using platform::NavigationController;

namespace {

bool popOne(NavigationController* stack)
{
    if (stack == nullptr) {
        return false;
    }
    // The detail of a single pane is a stack inside the stack.
    if (popOne(dynamic_cast<NavigationController*>(stack->topViewController()))) {
        return true;
    }
    return stack->popViewController() != nullptr;
}

} // namespace

SplitScreen::SplitScreen(std::shared_ptr<platform::SplitViewController> split, QtDevice& device,
                         ModalStack& modals, QtPreview& preview)
    : split_{std::move(split)}, device_{device}, modals_{modals}, preview_{preview}
{
    connect(&preview_, &QtPreview::changed, this, &SplitScreen::synchronize);
    split_->setPaneListener([this] { synchronize(); });
    connect(&registry_, &ScreenRegistry::childrenChanged, this, &SplitScreen::synchronize);
    connect(&modals_, &ModalStack::changed, this, &SplitScreen::synchronize);
}

SplitScreen::~SplitScreen()
{
    split_->setPaneListener({});
    for (const auto& weak : listenedStacks_) {
        if (const auto stack = std::dynamic_pointer_cast<NavigationController>(weak.lock())) {
            stack->setStackListener({});
        }
    }
    if (auto* stack = dynamic_cast<NavigationController*>(split_->viewControllers().front())) {
        stack->setStackListener({});
    }
}

void SplitScreen::setWidth(double points)
{
    device_.setWindowWidth(points);
    const bool collapse = points < platform::kTwoPaneWidth;
    if (shown_ && collapse == split_->isCollapsed()) {
        return;
    }
    // One picture of the panes when all is in its place, none in between.
    changing_ = true;
    split_->setCollapsed(collapse);
    modals_.setFullScreen(collapse);
    changing_ = false;
    shown_ = true;
    rearranging_ = true;
    synchronize();
    rearranging_ = false;
}

bool SplitScreen::back()
{
    const auto panes = split_->viewControllers();
    return std::ranges::any_of(panes | std::views::reverse, [](auto* pane) {
        return popOne(dynamic_cast<NavigationController*>(pane));
    });
}

HomeScreen* SplitScreen::home() const
{
    return primary_.isEmpty() ? nullptr : qobject_cast<HomeScreen*>(primary_.first());
}

void SplitScreen::backToHome()
{
    if (auto* lists = dynamic_cast<NavigationController*>(split_->viewControllers().front())) {
        lists->popToRootViewController();
    }
    if (!collapsed() && primaryHidden()) {
        split_->displayModeButtonItem().action();
    }
}

SplitScreen::Controllers
SplitScreen::screensOf(const std::shared_ptr<platform::ViewController>& container)
{
    const auto stack = std::dynamic_pointer_cast<NavigationController>(container);
    if (stack == nullptr) {
        return {container};
    }
    listenedStacks_.push_back(stack);
    return flatten(*stack);
}

SplitScreen::Controllers SplitScreen::flatten(NavigationController& stack)
{
    stack.setStackListener([this] { synchronize(); });
    Controllers screens;
    for (const auto& controller : stack.viewControllers()) {
        const auto within = screensOf(controller);
        screens.insert(screens.end(), within.begin(), within.end());
    }
    return screens;
}

QList<QObject*> SplitScreen::wrappersOf(const Controllers& controllers)
{
    QList<QObject*> screens;
    for (const auto& controller : controllers) {
        screens.append(registry_.screenFor(controller));
    }
    return screens;
}

void SplitScreen::synchronizeModals(Controllers& all, Controllers& visible)
{
    for (const auto& modal : modals_.modals()) {
        const auto controllers = screensOf(modal->controller());
        // Its page shows what loading fills in.
        controllers.back()->loadViewIfNeeded();
        modal->setScreens(wrappersOf(controllers));
        all.insert(all.end(), controllers.begin(), controllers.end());
        if (modals_.isFullScreen() && !modal->isSideMenu()) {
            visible.clear();
        }
        visible.push_back(controllers.back());
    }
}

void SplitScreen::synchronize()
{
    if (changing_ || !shown_) {
        return;
    }
    listenedStacks_.clear();
    Controllers all;
    Controllers visible;
    QList<QObject*> screens[2];
    const auto panes = split_->viewControllers();
    for (std::size_t pane = 0; pane < panes.size() && pane < 2; ++pane) {
        auto* stack = dynamic_cast<NavigationController*>(panes[pane]);
        if (stack == nullptr) {
            continue;
        }
        const auto controllers = flatten(*stack);
        screens[pane] = wrappersOf(controllers);
        all.insert(all.end(), controllers.begin(), controllers.end());
        const bool hidden = pane == 0 && panes.size() > 1 && split_->isPrimaryHidden();
        if (!controllers.empty() && !hidden) {
            visible.push_back(controllers.back());
        }
    }

    synchronizeModals(all, visible);
    const auto previewed = preview_.controller();
    if (previewed) {
        all.push_back(previewed);
        visible.push_back(previewed);
    }

    // Loaded here, so that a screen's children are known.
    for (const auto& controller : visible) {
        controller->loadViewIfNeeded();
    }
    Controllers withChildren;
    for (const auto& controller : visible) {
        withChildren.push_back(controller);
        const auto children = registry_.screenFor(controller)->visibleChildren();
        withChildren.insert(withChildren.end(), children.begin(), children.end());
    }
    visibility_.setVisible(std::move(withChildren));

    primary_ = screens[0];
    secondary_ = screens[1];
    preview_.setScreen(previewed ? registry_.screenFor(previewed) : nullptr);
    emit changed();
    // The pages that go say so first.
    registry_.retainOnly(all);
}

} // namespace lumora::qt
