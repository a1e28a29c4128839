// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "web/screen_states.h"

#include "detail/verb_card.h"
#include "detail/verb_detail_table_view_controller.h"
#include "detail/verb_guide.h"
#include "detail/verb_page.h"
#include "lists/interstitial_table_view_controller.h"
#include "lists/search_results_table_view_controller.h"
#include "lists/verb_list_table_view_controller.h"
#include "navigation/home_view_controller.h"
#include "navigation/more_apps_table_view_controller.h"
#include "navigation/options_table_view_controller.h"
#include "platform/screens/table_view_controller.h"
#include "web/web_views.h"

#include <utility>

namespace lumora::web {

namespace {

using detail::VerbDetailTableViewController;
using lists::InterstitialTableViewController;
using lists::SearchResultsTableViewController;
using lists::VerbChip;
using navigation::HomeViewController;
using navigation::OptionsTableViewController;

Json toJson(const platform::BarButton& button)
{
    return {{"id", button.identifier},
            {"title", button.title},
            {"image", button.image},
            {"enabled", button.enabled}};
}

Json barOf(const platform::NavigationItem& item)
{
    Json right = Json::array();
    for (const auto& button : item.rightBarButtons) {
        right.push_back(toJson(button));
    }
    return {{"title", item.title},
            {"left", item.leftBarButton ? toJson(*item.leftBarButton) : Json{}},
            {"right", std::move(right)}};
}

/// A list of verbs with the row of the verb that is open beside it.
template <typename List>
Json listState(List& list, std::int64_t openVerb)
{
    auto& table = dynamic_cast<WebTableView&>(list.tableView());
    auto state = table.describe();
    const auto path = openVerb == 0 ? std::nullopt : list.pathOfVerb(openVerb);
    state["open"] = path ? table.listRow(*path) : -1;
    return state;
}

Json readingsOf(const HomeViewController& home)
{
    Json cards = Json::array();
    for (const auto& card : home.readings().cards()) {
        cards.push_back(
            {{"headword", card.headword}, {"detail", card.detail}, {"kind", card.kind}});
    }
    return cards;
}

Json homeState(HomeViewController& home, std::int64_t openVerb)
{
    Json tabs = Json::array();
    for (const auto& item : home.tabBar.items) {
        tabs.push_back(
            {{"tag", static_cast<int>(item.tag)}, {"title", item.title}, {"image", item.image}});
    }
    const auto& search = home.searchBar;
    Json state{{"kind", "home"},
               {"tabs", std::move(tabs)},
               {"tab", static_cast<int>(home.tabBar.selectedItem)},
               {"search",
                {{"placeholder", search.placeholder},
                 {"text", search.text},
                 {"id", search.accessibilityIdentifier},
                 {"focus", search.isFirstResponder}}},
               {"list", nullptr},
               {"results", nullptr}};
    if (auto* list = dynamic_cast<InterstitialTableViewController*>(home.currentChild().get())) {
        state["list"] = listState(*list, openVerb);
    }
    if (home.tabBar.selectedItem == navigation::Tab::List && search.text.empty()) {
        const auto& filter = home.verbList().filter();
        state["chips"] = {
            {{"title", "list.common"}, {"on", filter.isChosen(VerbChip::Common)}},
            {{"title", "list.irregular"}, {"on", filter.isChosen(VerbChip::Irregular)}}};
    }
    if (home.searchResultsController() && !search.text.empty()) {
        state["results"] = listState(*home.searchResultsController(), openVerb);
        state["readings"] = readingsOf(home);
        state["nothingFound"] = home.readings().replaceResults();
        state["formsOffered"] = home.readings().offersForms();
    }
    return state;
}

Json optionsState(OptionsTableViewController& options)
{
    auto& table = dynamic_cast<WebTableView&>(options.tableView());
    Json state{{"kind", "options"}, {"table", table.describe()}};
    state["firstRow"] = options.firstRow ? table.listRow(*options.firstRow) : -1;
    state["header"] = {{"icon", options.header.iconImageView.image},
                       {"title", options.header.titleLabel},
                       {"copyright", options.header.copyrightLabel},
                       {"website", options.header.openWebsiteButton},
                       {"support", options.header.emailSupportButton}};
    return state;
}

Json toJson(const detail::TenseName& name)
{
    return {{"title", name.title}, {"other", name.otherTitle}};
}

Json wordsOf(VerbDetailTableViewController& screen)
{
    const auto guide = screen.page().guide();
    Json card = Json::array();
    for (const auto& line : guide.card()) {
        Json links = Json::array();
        for (const auto& link : line.links) {
            links.push_back({{"id", link.id}, {"title", link.title}});
        }
        card.push_back({{"label", line.label}, {"text", line.text}, {"links", std::move(links)}});
    }
    const auto nameAway = [&](int places) {
        const auto verb = screen.sequence.neighbour(places);
        return verb ? verb->french : std::string{};
    };
    return {{"summary", guide.summary()},
            {"card", std::move(card)},
            {"previous", nameAway(-1)},
            {"next", nameAway(1)}};
}

} // namespace

ScreenStates::Entry& ScreenStates::entryOf(const std::shared_ptr<platform::ViewController>& screen)
{
    for (auto entry = entries_.begin(); entry != entries_.end();) {
        entry = entry->second.screen.expired() ? entries_.erase(entry) : std::next(entry);
    }
    auto& entry = entries_[screen.get()];
    if (entry.number == 0) {
        entry.number = ++last_;
        entry.screen = screen;
    }
    return entry;
}

std::shared_ptr<platform::ViewController> ScreenStates::screen(int number) const
{
    for (const auto& [address, entry] : entries_) {
        if (entry.number == number) {
            return entry.screen.lock();
        }
    }
    return nullptr;
}

Json ScreenStates::verb(VerbDetailTableViewController& screen, Entry& entry, bool beside)
{
    auto& table = dynamic_cast<WebTableView&>(*screen.tableView);
    auto& collection = dynamic_cast<WebCollectionView&>(*screen.collectionView);
    const auto& moods = screen.verbTypeSegmentedControl;
    Json state{
        {"kind", "verb"},
        {"select", screen.selectVerbLabel.hidden ? Json{} : Json(screen.selectVerbLabel.text)}};
    if (!screen.selectedVerb) {
        return state;
    }
    if (!entry.words) {
        entry.words = std::make_shared<Json>(wordsOf(screen));
        screen.setWordsListener([words = std::weak_ptr{entry.words}] {
            if (const auto told = words.lock()) {
                *told = nullptr;
            }
        });
    }
    if (entry.words->is_null()) {
        *entry.words = wordsOf(screen);
    }
    const auto opened = screen.openedPath();
    state.update(*entry.words);
    state.update({{"verb", screen.selectedVerb->id},
                  {"moods", moods.hidden ? Json::array() : Json(moods.titles)},
                  {"mood", moods.selected},
                  {"table", table.describe()},
                  {"collection", collection.describe()},
                  {"opened", opened ? table.listRow(*opened) : -1},
                  {"voice", static_cast<int>(screen.page().voice())},
                  {"marks", screen.marksForms()},
                  {"hasForms", screen.page().hasForms()},
                  {"spoken", screen.spokenText()},
                  {"cardOpen", screen.page().isCardOpen(beside)}});
    return state;
}

Json ScreenStates::describe(const std::shared_ptr<platform::ViewController>& screen,
                            std::int64_t openVerb, bool beside)
{
    auto& entry = entryOf(screen);
    Json state;
    if (auto* home = dynamic_cast<HomeViewController*>(screen.get())) {
        state = homeState(*home, openVerb);
    } else if (auto* detail = dynamic_cast<VerbDetailTableViewController*>(screen.get())) {
        state = verb(*detail, entry, beside);
    } else if (auto* options = dynamic_cast<OptionsTableViewController*>(screen.get())) {
        state = optionsState(*options);
    } else if (auto* list = dynamic_cast<platform::TableViewController*>(screen.get())) {
        const bool apps = dynamic_cast<navigation::MoreAppsTableViewController*>(list) != nullptr;
        state = {{"kind", apps ? "apps" : "table"},
                 {"table", dynamic_cast<WebTableView&>(list->tableView()).describe()}};
    } else {
        state = {{"kind", "plain"}};
    }
    state["screen"] = entry.number;
    state["bar"] = barOf(screen->navigationItem());
    return state;
}

Json formSheetOf(VerbDetailTableViewController& screen, int tense, int line)
{
    const auto sheet =
        screen.selectedVerb
            ? screen.page().guide().sheet({screen.verbTypeSegmentedControl.selected, tense, line})
            : std::nullopt;
    if (!sheet) {
        return nullptr;
    }
    Json others = Json::array();
    for (const auto& [place, row, title] : sheet->others) {
        others.push_back({{"row", row},
                          {"tense", title},
                          {"segment", place.segment},
                          {"section", place.tense + 1},
                          {"line", place.row}});
    }
    return {{"row", sheet->row},       {"form", sheet->form},
            {"ipa", sheet->ipa},       {"tense", toJson(sheet->tense)},
            {"person", sheet->person}, {"others", std::move(others)}};
}

Json tenseNoteOf(VerbDetailTableViewController& screen, int tense)
{
    const auto note =
        screen.selectedVerb
            ? screen.page().guide().note(screen.verbTypeSegmentedControl.selected, tense)
            : std::nullopt;
    if (!note) {
        return nullptr;
    }
    return {{"tense", toJson(note->tense)},
            {"use", note->use},
            {"example", note->example},
            {"translation", note->translation}};
}

} // namespace lumora::web
