// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "detail/verb_steps.h"

#include "detail/verb_detail_table_view_controller.h"
#include "platform/screens/navigation_controller.h"
#include "platform/screens/storyboard.h"

#include <utility>

namespace lumora::detail {

namespace {

/// A screen out of the stack that the storyboard makes around it.
std::shared_ptr<VerbDetailTableViewController> emptyScreen(platform::Storyboard& storyboard)
{
    const auto stack = std::dynamic_pointer_cast<platform::NavigationController>(
        storyboard.instantiateDestination(platform::kShowDetailSegue));
    return stack ? std::dynamic_pointer_cast<VerbDetailTableViewController>(
                       stack->viewControllers().back())
                 : nullptr;
}

} // namespace

void showVerb(VerbDetailTableViewController& from, data::VerbPtr verb, VerbSequence sequence,
              VerbStep step, platform::Storyboard& storyboard)
{
    auto* const stack = from.navigationController();
    if (!verb || stack == nullptr) {
        return;
    }
    auto screen = emptyScreen(storyboard);
    if (!screen) {
        return;
    }
    screen->queue = from.queue;
    screen->selectedVerb = std::move(verb);
    screen->sequence = std::move(sequence);
    screen->firstMood = from.verbTypeSegmentedControl.selected;
    screen->offerDisplayModeButton(from.splitViewController());
    if (step == VerbStep::Cover) {
        // Under the page that comes nobody could stop it.
        from.stopSpeaking();
        stack->pushViewController(std::move(screen));
        return;
    }
    auto screens = stack->viewControllers();
    for (auto& each : screens) {
        if (each.get() == &from) {
            each = screen;
        }
    }
    stack->setViewControllers(std::move(screens));
}

} // namespace lumora::detail
