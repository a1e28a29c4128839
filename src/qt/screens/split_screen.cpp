// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/screens/split_screen.h"

#include "qt/machine/qt_device.h"
#include "qt/screens/home_screen.h"
#include "qt/screens/modal_stack.h"
#include "qt/screens/qt_preview.h"
#include "qt/screens/verb_detail_screen.h"

#include <utility>

namespace lumora::qt {

SplitScreen::SplitScreen(std::shared_ptr<platform::SplitViewController> split, QtDevice& device,
                         ModalStack& modals, QtPreview& preview)
    : device_{device},
      modals_{modals},
      preview_{preview},
      stacks_{std::move(split), [this] { synchronize(); }}
{
    connect(&preview_, &QtPreview::changed, this, &SplitScreen::synchronize);
    connect(&registry_, &ScreenRegistry::childrenChanged, this, &SplitScreen::synchronize);
    connect(&modals_, &ModalStack::changed, this, &SplitScreen::synchronize);
}

void SplitScreen::setWidth(double points)
{
    device_.setWindowWidth(points);
    const bool collapse = points < platform::kTwoPaneWidth;
    if (shown_ && collapse == stacks_.split().isCollapsed()) {
        return;
    }
    // One picture of the panes when all is in its place, none in between.
    changing_ = true;
    stacks_.split().setCollapsed(collapse);
    modals_.setFullScreen(collapse);
    changing_ = false;
    shown_ = true;
    rearranging_ = true;
    synchronize();
    rearranging_ = false;
}

HomeScreen* SplitScreen::home() const
{
    return primary_.isEmpty() ? nullptr : qobject_cast<HomeScreen*>(primary_.first());
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
        const auto controllers = stacks_.screensOf(modal->controller());
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
    stacks_.begin();
    Controllers all;
    Controllers visible;
    QList<QObject*> screens[2];
    for (std::size_t pane = 0; pane < 2; ++pane) {
        const auto controllers = stacks_.pane(pane);
        screens[pane] = wrappersOf(controllers);
        all.insert(all.end(), controllers.begin(), controllers.end());
        const bool hidden = pane == 0 && !collapsed() && primaryHidden();
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
    if (auto* const lists = home()) {
        const auto* beside =
            secondary_.isEmpty() ? nullptr : qobject_cast<VerbDetailScreen*>(secondary_.last());
        lists->setOpenVerb(beside == nullptr ? 0 : static_cast<int>(beside->verbId()));
    }
    preview_.setScreen(previewed ? registry_.screenFor(previewed) : nullptr);
    emit changed();
    // The pages that go say so first.
    registry_.retainOnly(all);
}

} // namespace lumora::qt
