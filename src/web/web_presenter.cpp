// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "web/web_presenter.h"

#include "detail/verb_detail_table_view_controller.h"
#include "lists/interstitial_table_view_controller.h"
#include "lists/search_results_table_view_controller.h"
#include "navigation/home_view_controller.h"
#include "platform/screens/mail_composer.h"
#include "platform/screens/navigation_controller.h"
#include "platform/screens/split_view_controller.h"
#include "web/web_views.h"

#include <algorithm>
#include <utility>

namespace lumora::web {

using platform::NavigationController;
using platform::ViewController;

namespace {

bool holds(const Modal& modal, const ViewController& screen)
{
    if (modal.controller.get() == &screen) {
        return true;
    }
    const auto* stack = dynamic_cast<const NavigationController*>(modal.controller.get());
    return stack != nullptr &&
           std::any_of(stack->viewControllers().begin(), stack->viewControllers().end(),
                       [&](const auto& each) { return each.get() == &screen; });
}

template <typename List>
void findRow(Preview& preview, List& list)
{
    if (const auto* table = dynamic_cast<WebTableView*>(&list.tableView())) {
        preview.table = table->number();
        preview.path = [&list, id = preview.verb->selectedVerb->id] { return list.pathOfVerb(id); };
    }
}

} // namespace

void WebPresenter::performSegue(ViewController& source, std::string_view identifier,
                                std::optional<platform::IndexPath> sender)
{
    auto destination = platform::prepareSegue(storyboard_, source, identifier, sender);
    if (!destination) {
        return;
    }
    const auto style = storyboard_.segueStyle(identifier);
    if (style != platform::SegueStyle::ShowDetail) {
        modals_.push_back({std::move(destination), style == platform::SegueStyle::SideMenu});
        changed_();
    } else if (auto* split = source.splitViewController()) {
        split->showDetailViewController(std::move(destination));
    }
}

void WebPresenter::previewSegue(ViewController& source, std::string_view identifier,
                                std::optional<platform::IndexPath> sender)
{
    Preview preview;
    preview.destination = platform::prepareSegue(storyboard_, source, identifier, sender);
    const auto* stack = dynamic_cast<NavigationController*>(preview.destination.get());
    preview.verb = stack == nullptr
                       ? nullptr
                       : std::dynamic_pointer_cast<detail::VerbDetailTableViewController>(
                             stack->viewControllers().back());
    if (!preview.verb || !preview.verb->selectedVerb) {
        return;
    }
    preview.verb->isPeeking = true;
    preview.split = source.splitViewController();
    // A result is held in the results, but the step is the home screen's.
    if (auto* list = dynamic_cast<lists::InterstitialTableViewController*>(&source)) {
        findRow(preview, *list);
    } else if (const auto* home = dynamic_cast<navigation::HomeViewController*>(&source);
               home != nullptr && home->searchResultsController()) {
        findRow(preview, *home->searchResultsController());
    }
    preview_ = std::move(preview);
    changed_();
}

void WebPresenter::openPreview()
{
    const auto opened = std::exchange(preview_, std::nullopt);
    // The screen disappears as a preview, then appears in its place.
    changed_();
    if (opened && opened->split != nullptr) {
        opened->verb->isPeeking = false;
        opened->split->showDetailViewController(opened->destination);
    }
}

void WebPresenter::closePreview()
{
    if (preview_) {
        preview_.reset();
        changed_();
    }
}

void WebPresenter::present(ViewController& /*on*/, std::shared_ptr<ViewController> screen)
{
    if (std::dynamic_pointer_cast<platform::MailComposer>(screen)) {
        // Its window is another program's: there is nothing of it to show here.
        screen->loadViewIfNeeded();
        screen->viewWillAppear();
        screen->viewDidAppear();
        return;
    }
    modals_.push_back({std::move(screen), false});
    changed_();
}

void WebPresenter::dismiss(ViewController& presented, std::function<void()> completed)
{
    const auto found = std::find_if(modals_.begin(), modals_.end(),
                                    [&](const Modal& modal) { return holds(modal, presented); });
    // What goes may be calling.
    std::vector<Modal> gone;
    if (found != modals_.end()) {
        gone.assign(found, modals_.end());
        modals_.erase(found, modals_.end());
        changed_();
    } else if (dynamic_cast<platform::MailComposer*>(&presented) != nullptr) {
        presented.viewDidDisappear();
    }
    if (completed) {
        completed();
    }
}

bool WebPresenter::closeTopModal()
{
    if (modals_.empty()) {
        return false;
    }
    // A copy: the action may take it away.
    const auto controller = modals_.back().controller;
    auto* stack = dynamic_cast<NavigationController*>(controller.get());
    if (stack != nullptr && stack->popViewController() != nullptr) {
        return true;
    }
    const auto* top = stack == nullptr ? controller.get() : stack->topViewController();
    const auto buttons = top->navigationItem().rightBarButtons;
    const auto done = std::find_if(buttons.begin(), buttons.end(),
                                   [](const auto& button) { return button.identifier == "done"; });
    if (done == buttons.end()) {
        dismiss(*controller, nullptr);
    } else if (done->enabled && done->action) {
        done->action();
    }
    return true;
}

void WebPresenter::presentAlert(ViewController& /*on*/, const platform::Alert& alert)
{
    ask({alert.title, alert.message, alert.actions, false});
}

void WebPresenter::presentActionSheet(ViewController& /*on*/, const platform::ActionSheet& sheet,
                                      platform::IndexPath /*anchor*/)
{
    ask({sheet.title, {}, sheet.actions, true});
}

void WebPresenter::ask(Question question)
{
    // A notice that is given again takes the place of the first, so that it is
    // answered once.
    if (!questions_.empty() && question.isNotice() && questions_.back().isNotice() &&
        question.title == questions_.back().title &&
        question.message == questions_.back().message) {
        questions_.back() = std::move(question);
        return;
    }
    questions_.push_back(std::move(question));
}

int WebPresenter::Question::cancelIndex() const
{
    const auto found = std::find_if(actions.begin(), actions.end(), [](const auto& action) {
        return action.style == platform::ActionStyle::Cancel;
    });
    return found == actions.end() ? -1 : static_cast<int>(found - actions.begin());
}

Json WebPresenter::question() const
{
    if (questions_.empty()) {
        return nullptr;
    }
    const auto& question = questions_.front();
    Json answers = Json::array();
    for (const auto& action : question.actions) {
        answers.push_back({{"title", action.title},
                           {"destructive", action.style == platform::ActionStyle::Destructive},
                           {"cancel", action.style == platform::ActionStyle::Cancel},
                           {"chosen", action.chosen}});
    }
    return {{"title", question.title.value_or("")},
            {"message", question.message},
            {"sheet", question.sheet},
            {"answers", std::move(answers)},
            {"cancellable", question.sheet || question.cancelIndex() >= 0}};
}

void WebPresenter::answer(int index)
{
    if (questions_.empty() || index < 0 ||
        static_cast<std::size_t>(index) >= questions_.front().actions.size()) {
        return;
    }
    const auto handler = questions_.front().actions[static_cast<std::size_t>(index)].handler;
    questions_.pop_front();
    if (handler) {
        handler();
    }
}

void WebPresenter::cancel()
{
    if (questions_.empty()) {
        return;
    }
    const auto& question = questions_.front();
    if (const int index = question.cancelIndex(); index >= 0) {
        answer(index);
    } else if (question.sheet) {
        questions_.pop_front();
    }
}

} // namespace lumora::web
