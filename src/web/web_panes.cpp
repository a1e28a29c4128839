// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "web/web_panes.h"

#include "detail/verb_detail_table_view_controller.h"
#include "navigation/home_view_controller.h"
#include "platform/screens/navigation_controller.h"
#include "web/web_presenter.h"

#include <algorithm>
#include <utility>

namespace lumora::web {

using platform::NavigationController;
using platform::ViewController;

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

/// The screens shown inside a screen.
std::vector<std::shared_ptr<ViewController>> childrenOf(const ViewController& screen)
{
    std::vector<std::shared_ptr<ViewController>> children;
    if (const auto* home = dynamic_cast<const navigation::HomeViewController*>(&screen)) {
        if (home->currentChild()) {
            children.push_back(home->currentChild());
        }
        // The results lie over the list, which does not go away for them.
        if (home->searchResultsController() && !home->searchBar.text.empty()) {
            children.push_back(home->searchResultsController());
        }
    }
    return children;
}

} // namespace

WebPanes::WebPanes(std::shared_ptr<platform::SplitViewController> split,
                   const WebPresenter& presenter)
    : split_{std::move(split)}, presenter_{presenter}
{
    split_->setPaneListener([this] { synchronize(); });
}

WebPanes::~WebPanes()
{
    split_->setPaneListener({});
    for (const auto& weak : listened_) {
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

void WebPanes::setWidth(double points)
{
    const bool collapse = points < platform::kTwoPaneWidth;
    if (shown_ && collapse == split_->isCollapsed()) {
        return;
    }
    // One picture of the panes when all is in its place, none in between.
    changing_ = true;
    split_->setCollapsed(collapse);
    changing_ = false;
    shown_ = true;
    synchronize();
}

bool WebPanes::back() const
{
    auto panes = split_->viewControllers();
    std::reverse(panes.begin(), panes.end());
    return std::any_of(panes.begin(), panes.end(), [](auto* pane) {
        return popOne(dynamic_cast<NavigationController*>(pane));
    });
}

WebPanes::Screens WebPanes::screensOf(const std::shared_ptr<ViewController>& container)
{
    const auto stack = std::dynamic_pointer_cast<NavigationController>(container);
    if (stack == nullptr) {
        return {container};
    }
    listened_.push_back(stack);
    return flatten(*stack);
}

WebPanes::Screens WebPanes::flatten(NavigationController& stack)
{
    stack.setStackListener([this] { synchronize(); });
    Screens screens;
    for (const auto& controller : stack.viewControllers()) {
        const auto within = screensOf(controller);
        screens.insert(screens.end(), within.begin(), within.end());
    }
    return screens;
}

WebPanes::Screens WebPanes::paneAt(std::size_t pane)
{
    const auto panes = split_->viewControllers();
    auto* stack = pane < panes.size() ? dynamic_cast<NavigationController*>(panes[pane]) : nullptr;
    return stack == nullptr ? Screens{} : flatten(*stack);
}

void WebPanes::synchronize()
{
    if (changing_ || !shown_) {
        return;
    }
    listened_.clear();
    Screens visible;
    const auto lists = paneAt(0);
    const auto details = paneAt(1);
    if (!lists.empty() && (details.empty() || !split_->isPrimaryHidden())) {
        visible.push_back(lists.back());
    }
    if (!details.empty()) {
        visible.push_back(details.back());
    }
    for (const auto& modal : presenter_.modals()) {
        const auto screens = screensOf(modal.controller);
        if (split_->isCollapsed() && !modal.sideMenu) {
            visible.clear();
        }
        visible.push_back(screens.back());
    }
    if (presenter_.preview()) {
        visible.push_back(presenter_.preview()->verb);
    }
    Screens withChildren;
    for (const auto& screen : visible) {
        // Loaded here, so that its children are known.
        screen->loadViewIfNeeded();
        withChildren.push_back(screen);
        const auto children = childrenOf(*screen);
        withChildren.insert(withChildren.end(), children.begin(), children.end());
    }
    visibility_.setVisible(std::move(withChildren));
}

Json WebPanes::describe(const Screens& screens, std::int64_t openVerb)
{
    Json states = Json::array();
    for (const auto& screen : screens) {
        // Those below may never have been on show.
        screen->loadViewIfNeeded();
        states.push_back(states_.describe(screen, openVerb));
    }
    return states;
}

Json WebPanes::describe()
{
    const auto lists = paneAt(0);
    const auto details = paneAt(1);
    const auto* beside =
        details.empty()
            ? nullptr
            : dynamic_cast<detail::VerbDetailTableViewController*>(details.back().get());
    const auto openVerb = beside == nullptr || !beside->selectedVerb ? 0 : beside->selectedVerb->id;
    Json modals = Json::array();
    for (const auto& modal : presenter_.modals()) {
        modals.push_back(
            {{"menu", modal.sideMenu}, {"screens", describe(screensOf(modal.controller), 0)}});
    }
    return {{"primary", describe(lists, openVerb)},
            {"secondary", describe(details, 0)},
            {"collapsed", split_->isCollapsed()},
            {"primaryHidden", split_->isPrimaryHidden()},
            {"modals", std::move(modals)}};
}

} // namespace lumora::web
