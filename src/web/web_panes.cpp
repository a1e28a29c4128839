// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "web/web_panes.h"

#include "detail/verb_detail_table_view_controller.h"
#include "navigation/home_view_controller.h"
#include "web/web_presenter.h"

#include <utility>

namespace lumora::web {

using platform::ViewController;

namespace {

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
    : presenter_{presenter}, stacks_{std::move(split), [this] { synchronize(); }}
{}

void WebPanes::setWidth(double points)
{
    const bool collapse = points < platform::kTwoPaneWidth;
    if (shown_ && collapse == stacks_.split().isCollapsed()) {
        return;
    }
    // One picture of the panes when all is in its place, none in between.
    changing_ = true;
    stacks_.split().setCollapsed(collapse);
    changing_ = false;
    shown_ = true;
    synchronize();
}

void WebPanes::synchronize()
{
    if (changing_ || !shown_) {
        return;
    }
    stacks_.begin();
    Screens visible;
    const auto lists = stacks_.pane(0);
    const auto details = stacks_.pane(1);
    if (!lists.empty() && (details.empty() || !stacks_.split().isPrimaryHidden())) {
        visible.push_back(lists.back());
    }
    if (!details.empty()) {
        visible.push_back(details.back());
    }
    for (const auto& modal : presenter_.modals()) {
        const auto screens = stacks_.screensOf(modal.controller);
        if (stacks_.split().isCollapsed() && !modal.sideMenu) {
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

Json WebPanes::describe(const Screens& screens, std::int64_t openVerb, bool beside)
{
    Json states = Json::array();
    for (const auto& screen : screens) {
        // Those below may never have been on show.
        screen->loadViewIfNeeded();
        states.push_back(states_.describe(screen, openVerb, beside));
    }
    return states;
}

Json WebPanes::describe()
{
    const auto lists = stacks_.pane(0);
    const auto details = stacks_.pane(1);
    const auto* beside =
        details.empty()
            ? nullptr
            : dynamic_cast<detail::VerbDetailTableViewController*>(details.back().get());
    const auto openVerb = beside == nullptr || !beside->selectedVerb ? 0 : beside->selectedVerb->id;
    Json modals = Json::array();
    for (const auto& modal : presenter_.modals()) {
        modals.push_back({{"menu", modal.sideMenu},
                          {"screens", describe(stacks_.screensOf(modal.controller), 0, false)}});
    }
    return {{"primary", describe(lists, openVerb, false)},
            {"secondary", describe(details, 0, true)},
            {"collapsed", stacks_.split().isCollapsed()},
            {"primaryHidden", stacks_.split().isPrimaryHidden()},
            {"modals", std::move(modals)}};
}

} // namespace lumora::web
