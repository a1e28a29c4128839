// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "detail/verb_detail_table_view_controller.h"
#include "detail/verb_page.h"
#include "lists/verb_list_table_view_controller.h"
#include "navigation/home_view_controller.h"
#include "navigation/options_table_view_controller.h"
#include "platform/screens/navigation_controller.h"
#include "web/web_application.h"

#include <algorithm>
#include <iostream>
#include <set>

// What the page's events do. Their names and parts are those of page/messages.ts.

namespace lumora::web {

namespace {

using detail::VerbDetailTableViewController;

/// What cannot do without the helper tables, or would be slow.
bool needsHelpers(std::string_view kind)
{
    static const std::set<std::string_view> kKinds{
        "search", "openReading", "openFirst", "tap",         "hold",
        "link",   "neighbour",   "related",   "openPreview", "chip"};
    return kKinds.contains(kind);
}

} // namespace

Json WebApplication::dispatch(std::string_view kind, const Json& event)
{
    if (helpers_ && !helpers_->isDone() && needsHelpers(kind)) {
        helpers_->finish();
        helpersAreDone();
    }
    Json reply;
    if (handleTable(kind, event, reply) || handleHome(kind, event) ||
        handleVerb(kind, event, reply) || handleQuestion(kind, event, reply)) {
        return reply;
    }
    handleMachine(kind, event);
    return reply;
}

navigation::HomeViewController* WebApplication::home() const
{
    auto* split =
        dynamic_cast<platform::SplitViewController*>(delegate_.window.rootViewController.get());
    auto* stack =
        split == nullptr
            ? nullptr
            : dynamic_cast<platform::NavigationController*>(split->viewControllers().front());
    return stack == nullptr || stack->viewControllers().empty()
               ? nullptr
               : dynamic_cast<navigation::HomeViewController*>(
                     stack->viewControllers().front().get());
}

bool WebApplication::handleTable(std::string_view kind, const Json& event, Json& reply) const
{
    if (!event.contains("table")) {
        return false;
    }
    // One that has gone since the page sent the event is no fault, nor is another
    // verb at its row.
    auto* table = views_.table(event.value("table", 0));
    if (table == nullptr) {
        return true;
    }
    const int row = event.value("row", -1);
    if (event.contains("text") && table->textOf(row) != event.value("text", "")) {
        return true;
    }
    if (kind == "rows") {
        reply = table->rows(event.value("from", 0), event.value("count", 0));
    } else if (kind == "actions") {
        reply = table->trailingActions(row);
    } else if (kind == "action") {
        table->triggerAction(row, event.value("action", -1));
    } else {
        return table->handle(kind, row, event);
    }
    return true;
}

bool WebApplication::handleHome(std::string_view kind, const Json& event) const
{
    auto* screen = home();
    if (screen == nullptr) {
        return false;
    }
    if (kind == "tab") {
        screen->didSelectItem(
            static_cast<navigation::Tab>(std::clamp(event.value("tag", 0), 0, 2)));
    } else if (kind == "search") {
        if (const auto text = event.value("text", ""); text != screen->searchBar.text) {
            screen->searchTextChanged(text);
        }
    } else if (kind == "searchFocus") {
        screen->searchBar.isFirstResponder = event.value("on", false);
    } else if (kind == "openReading") {
        // A card of an earlier text may mean another verb now.
        if (event.value("text", "") == screen->searchBar.text) {
            screen->didSelectReading(event.value("card", std::size_t{0}));
        }
    } else if (kind == "openFirst") {
        screen->searchBarSearchButtonClicked();
    } else if (kind == "formsOption") {
        screen->showFormsOption();
    } else if (kind == "chip") {
        screen->verbList().choose(event.value("chip", 0) == 0 ? lists::VerbChip::Common
                                                              : lists::VerbChip::Irregular,
                                  event.value("on", false));
    } else if (kind == "home") {
        panes_->backToHome();
    } else if (kind == "showOptions") {
        screen->showOptions();
    } else {
        return false;
    }
    return true;
}

bool WebApplication::handleVerb(std::string_view kind, const Json& event, Json& reply) const
{
    // Kept: what it does may take its screen away.
    const auto controller = panes_ ? panes_->screen(event.value("screen", 0)) : nullptr;
    if (auto* options = dynamic_cast<navigation::OptionsTableViewController*>(controller.get())) {
        if (kind == "website") {
            options->openWebsite();
            return true;
        }
        if (kind == "support") {
            options->sendSupportEmail();
            return true;
        }
    }
    auto* verb = dynamic_cast<VerbDetailTableViewController*>(controller.get());
    if (verb == nullptr || !verb->selectedVerb) {
        return false;
    }
    const int tense = event.value("tense", 0);
    const int line = event.value("line", 0);
    if (kind == "mood") {
        verb->selectVerbTypes(event.value("segment", 0));
    } else if (kind == "voice") {
        verb->page().chooseVoice(static_cast<platform::Voice>(event.value("voice", 0) == 1));
    } else if (kind == "marks") {
        verb->setMarksForms(event.value("on", true));
    } else if (kind == "playTense") {
        verb->page().playTense(tense);
    } else if (kind == "stop") {
        verb->stopSpeaking();
    } else if (kind == "sheet") {
        reply = formSheetOf(*verb, tense, line);
    } else if (kind == "note") {
        reply = tenseNoteOf(*verb, tense);
    } else if (kind == "slowly") {
        verb->page().saySlowly({verb->verbTypeSegmentedControl.selected, tense, line},
                               event.value("squares", false));
    } else if (kind == "audio") {
        verb->audioTapped(event.value("item", 0), line);
    } else if (kind == "neighbour") {
        verb->page().showNeighbour(event.value("places", 1));
    } else if (kind == "related") {
        verb->page().showRelated(event.value("verb", std::int64_t{-1}));
    } else if (kind == "card") {
        verb->page().keepCardOpen(event.value("open", true));
    } else {
        return false;
    }
    return true;
}

bool WebApplication::handleQuestion(std::string_view kind, const Json& event, Json& reply)
{
    if (kind == "answer") {
        presenter_.answer(event.value("index", -1));
    } else if (kind == "cancel") {
        presenter_.cancel();
    } else if (kind == "openPreview") {
        presenter_.openPreview();
    } else if (kind == "closePreview") {
        presenter_.closePreview();
    } else if (kind == "previewAction") {
        triggerPreview(event.value("action", -1));
    } else if (kind == "press") {
        press(event.value("screen", 0), event.value("button", ""));
    } else if (kind == "back") {
        reply = panes_ && (presenter_.closeTopModal() || panes_->back());
    } else {
        return false;
    }
    return true;
}

void WebApplication::press(int number, const std::string& identifier) const
{
    const auto screen = panes_ ? panes_->screen(number) : nullptr;
    if (!screen) {
        return;
    }
    const auto& item = screen->navigationItem();
    auto buttons = item.rightBarButtons;
    if (item.leftBarButton) {
        buttons.push_back(*item.leftBarButton);
    }
    // Out of the copy: the action may change the bar.
    const auto pressed = std::find_if(buttons.begin(), buttons.end(), [&](const auto& button) {
        return button.identifier == identifier;
    });
    if (pressed != buttons.end() && pressed->enabled && pressed->action) {
        pressed->action();
    }
}

Json WebApplication::previewState() const
{
    const auto& preview = presenter_.preview();
    if (!preview) {
        return nullptr;
    }
    Json actions = Json::array();
    if (auto* table = views_.table(preview->table); table != nullptr && preview->path) {
        if (const auto path = preview->path()) {
            actions = table->trailingActions(table->listRow(*path));
        }
    }
    const auto guide = preview->verb->page().guide();
    return {{"title", preview->verb->selectedVerb->french},
            {"translation", preview->verb->selectedVerb->translation(settings_, device_)},
            {"summary", guide.summary()},
            {"table", dynamic_cast<WebTableView&>(*preview->verb->tableView).describe()},
            {"actions", std::move(actions)}};
}

void WebApplication::triggerPreview(int action)
{
    if (!presenter_.preview()) {
        return;
    }
    const auto preview = *presenter_.preview();
    auto* table = views_.table(preview.table);
    const auto path = preview.path ? preview.path() : std::nullopt;
    presenter_.closePreview();
    if (table != nullptr && path) {
        table->triggerAction(table->listRow(*path), action);
    }
}

void WebApplication::handleMachine(std::string_view kind, const Json& event)
{
    if (kind == "width") {
        device_.setWidth(event.value("points", 0.0));
        if (panes_) {
            panes_->setWidth(event.value("points", 0.0));
        }
    } else if (kind == "timer") {
        if (helpers_ && !helpers_->isDone()) {
            due_.push_back(event.value("timer", 0));
        } else {
            clock_.fire(event.value("timer", 0));
        }
    } else if (kind == "speech") {
        speech_.handle(event.value("utterance", 0), event.value("news", ""), event);
    } else if (kind == "picked") {
        fileChooser_.picked(event.value("content", ""));
    } else if (kind == "link") {
        delegate_.openLink(event.value("link", ""));
    } else if (kind == "visible") {
        device_.setActive(event.value("on", true));
        for (auto* store : {&settings_, &viewMemory_}) {
            if (const auto written = store->synchronize(); !written) {
                std::cerr << "Unable to write the settings: " << written.error().message << '\n';
            }
        }
    } else if (kind == "crash") {
        crashReporter_.logWithFormat("%@", {event.value("text", "")});
    } else if (kind != "start") {
        std::cerr << "lumora: unknown event " << kind << '\n';
    }
}

} // namespace lumora::web
