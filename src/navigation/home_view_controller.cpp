// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "navigation/home_view_controller.h"

#include "detail/verb_detail_table_view_controller.h"
#include "export/support_email_sender.h"
#include "lists/favourites_table_view_controller.h"
#include "lists/history_table_view_controller.h"
#include "lists/interstitial_table_view_controller.h"
#include "lists/verb_list_table_view_controller.h"
#include "navigation/crash_report_values.h"
#include "navigation/option_rows.h"
#include "platform/machine/bundle.h"
#include "platform/machine/clock.h"
#include "platform/machine/device.h"
#include "platform/screens/navigation_controller.h"
#include "platform/screens/presenter.h"
#include "platform/screens/split_view_controller.h"
#include "platform/screens/storyboard.h"
#include "platform/storage/settings_store.h"
#include "settings/setting_keys.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <optional>
#include <utility>

namespace lumora::navigation {

namespace {

template <typename Controller>
Controller& topOf(platform::ViewController& stack)
{
    return dynamic_cast<Controller&>(
        *dynamic_cast<platform::NavigationController&>(stack).topViewController());
}

/// By then the first list is drawn.
constexpr std::chrono::milliseconds kBehindFirstList{400};

constexpr std::string_view kScreenOfTab[] = {platform::kVerbListScreen, platform::kFavouritesScreen,
                                             platform::kHistoryScreen};

} // namespace

HomeViewController::HomeViewController(const platform::Services& services)
    : services_{services},
      readings_{std::make_shared<SearchReadings>(services.bundle, services.settings,
                                                 services.device, services.crashReporter)},
      children_(std::size(kScreenOfTab))
{}

HomeViewController::~HomeViewController()
{
    if (searchResultsController_) {
        searchResultsController_->delegate = nullptr;
    }
}

void HomeViewController::setOutletListener(std::function<void()> listener)
{
    outletListener_ = std::move(listener);
}

void HomeViewController::outletsChanged()
{
    if (outletListener_) {
        outletListener_();
    }
}

void HomeViewController::viewDidLoad()
{
    historyFeature_ = data::observe<data::HistoryFeatureToggled>(
        services_.notifications, [this](const auto& news) { historyFeatureToggled(news); });
    tabOpen_ = data::observe<data::TabOpenEvent>(services_.notifications,
                                                 [this](const auto& news) { openTab(news); });
    favouriteToggled_ = data::observe<data::VerbFavouriteToggled>(
        services_.notifications, [this](const auto& news) { verbFavouriteToggled(news); });
    makeSearchResultsController();

    const auto text = [this](std::string_view key) {
        return platform::localizedString(services_.bundle, key);
    };
    auto item = navigationItem();
    item.title = text("verb.list.full");
    item.leftBarButton = {
        .identifier = "menu", .title = {}, .image = "menu", .enabled = true, .action = [this] {
            performSegue(platform::kNavigationSegue);
        }};
    setNavigationItem(std::move(item));
    searchBar.accessibilityIdentifier = "Search";
    searchBar.placeholder = text("search.placeholder");
    listTabBarItem_ = {Tab::List, text("tabs.list"), "tab_list"};
    favouritesTabBarItem_ = {Tab::Favourites, text("tabs.favourites"), "tab_favourites"};
    historyTabBarItem_ = {Tab::History, text("tabs.history"), "tab_history"};

    findDetailViewController();
    showTab(Tab::List);
    buildTabBarItems();
    readings_->queue = queue;
    services_.clock.runLater(kBehindFirstList,
                             [readings = std::weak_ptr<SearchReadings>{readings_}] {
                                 if (const auto alive = readings.lock()) {
                                     alive->prepare();
                                 }
                             });
}

void HomeViewController::makeSearchResultsController()
{
    const auto stack = std::dynamic_pointer_cast<platform::NavigationController>(
        services_.storyboard.instantiateViewController(platform::kSearchResultsScreen));
    if (!stack || stack->viewControllers().empty()) {
        std::abort();
    }
    searchResultsController_ = std::dynamic_pointer_cast<lists::SearchResultsTableViewController>(
        stack->viewControllers().back());
    if (!searchResultsController_) {
        std::abort();
    }
    searchResultsController_->delegate = this;
    searchResultsController_->queue = queue;
    searchResultsController_->loadViewIfNeeded();
}

void HomeViewController::findDetailViewController()
{
    if (splitViewController() == nullptr) {
        return;
    }
    auto* stack = dynamic_cast<platform::NavigationController*>(
        splitViewController()->viewControllers().back());
    if (stack == nullptr || stack->viewControllers().empty()) {
        return;
    }
    detailViewController = std::dynamic_pointer_cast<detail::VerbDetailTableViewController>(
        stack->viewControllers().back());
}

void HomeViewController::viewWillAppear()
{
    sendCrashReportValues(services_.settings, services_.device, services_.crashReporter);
}

void HomeViewController::setSplitViewController(platform::SplitViewController* splitView)
{
    ViewController::setSplitViewController(splitView);
    for (const auto& child : children_) {
        if (child) {
            child->setSplitViewController(splitView);
        }
    }
}

void HomeViewController::historyFeatureToggled(const data::HistoryFeatureToggled& /*news*/)
{
    buildTabBarItems();
}

void HomeViewController::verbFavouriteToggled(const data::VerbFavouriteToggled& news)
{
    // The results have already changed a row of their own.
    if (news.sender != searchResultsController_.get()) {
        updateSearchResults();
    }
}

void HomeViewController::openTab(const data::TabOpenEvent& news)
{
    if (news.selectedTab == data::TabOpenEvent::kHistory && offers(Tab::History)) {
        didSelectItem(Tab::History);
    } else if (news.selectedTab == data::TabOpenEvent::kFavourites) {
        didSelectItem(Tab::Favourites);
    } else {
        didSelectItem(Tab::List);
    }
}

bool HomeViewController::offers(Tab tab) const
{
    return std::any_of(tabBar.items.begin(), tabBar.items.end(),
                       [tab](const TabBarItem& item) { return item.tag == tab; });
}

void HomeViewController::didSelectItem(Tab tag)
{
    endSearch();
    showTab(tag);
}

void HomeViewController::endSearch()
{
    searchBar.text.clear();
    searchBar.isFirstResponder = false;
}

void HomeViewController::buildTabBarItems()
{
    tabBar.items = {listTabBarItem_, favouritesTabBarItem_};
    if (platform::boolObjectForKey(services_.settings, settings::kUseHistory).value_or(true)) {
        tabBar.items.push_back(historyTabBarItem_);
    }
    showTab(Tab::List);
}

void HomeViewController::showTab(Tab tab)
{
    tabBar.selectedItem = tab;
    currentChild_ = listFor(tab);
    currentChild_->loadViewIfNeeded();
    outletsChanged();
}

std::shared_ptr<lists::InterstitialTableViewController> HomeViewController::listFor(Tab tab)
{
    auto& child = children_.at(static_cast<std::size_t>(tab));
    if (!child) {
        child = std::dynamic_pointer_cast<lists::InterstitialTableViewController>(
            services_.storyboard.instantiateViewController(
                kScreenOfTab[static_cast<std::size_t>(tab)]));
        if (!child) {
            std::abort();
        }
        child->queue = queue;
        child->setSplitViewController(splitViewController());
    }
    return child;
}

lists::VerbListTableViewController& HomeViewController::verbList()
{
    return dynamic_cast<lists::VerbListTableViewController&>(*listFor(Tab::List));
}

void HomeViewController::searchTextChanged(std::string text)
{
    searchBar.text = std::move(text);
    updateSearchResults();
}

void HomeViewController::updateSearchResults()
{
    if (searchResultsController_ && !searchBar.text.empty()) {
        searchResultsController_->search(searchBar.text);
        readings_->read(searchBar.text, searchResultsController_->verbs);
    } else {
        readings_->clear();
    }
    outletsChanged();
}

void HomeViewController::selectedScopeButtonIndexDidChange(int /*scope*/)
{
    updateSearchResults();
}

void HomeViewController::searchBarCancelButtonClicked() {}

void HomeViewController::searchBarSearchButtonClicked()
{
    if (!searchResultsController_ || searchBar.text.empty()) {
        return;
    }
    if (!readings_->cards().empty()) {
        didSelectReading(0);
    } else if (!searchResultsController_->verbs.empty()) {
        searchResultsController_->rowTapped({0, 0});
    }
}

void HomeViewController::focusSearchBar()
{
    searchBar.isFirstResponder = true;
    outletsChanged();
}

void HomeViewController::didSelectSearchResult(const data::VerbPtr& verb)
{
    showSearchResult(verb, std::nullopt);
}

void HomeViewController::didSelectReading(std::size_t card)
{
    if (card < readings_->cards().size()) {
        const auto chosen = readings_->cards()[card];
        showSearchResult(chosen.verb, chosen.place);
    }
}

void HomeViewController::showSearchResult(const data::VerbPtr& verb,
                                          const std::optional<data::FormPlace>& place)
{
    selectedSearchResult = verb;
    openedForm_ = place;
    performSegue(platform::kShowSearchResultSegue);
    openedForm_.reset();
    if (services_.device.isTablet()) {
        searchBar.isFirstResponder = false;
        outletsChanged();
    }
}

detail::VerbSequence HomeViewController::shownFrom(const data::VerbPtr& verb) const
{
    const auto& results = *searchResultsController_;
    std::vector<data::VerbPtr> shown;
    for (const auto& card : readings_->cards()) {
        const bool known = results.pathOfVerb(card.verb->id) ||
                           std::any_of(shown.begin(), shown.end(), [&](const data::VerbPtr& other) {
                               return other->id == card.verb->id;
                           });
        if (!known) {
            shown.push_back(card.verb);
        }
    }
    shown.insert(shown.end(), results.verbs.begin(), results.verbs.end());
    // A verb that was not found by this search has no neighbours in its results.
    const auto at = std::find(shown.begin(), shown.end(), verb);
    const auto place = static_cast<std::size_t>(at - shown.begin());
    return {std::move(shown), place};
}

void HomeViewController::showFormsOption()
{
    firstOption_ = pathOfOption(settings::kIncludeConjugations);
    performSegue(platform::kOptionsSegue);
    firstOption_.reset();
}

void HomeViewController::performSegue(std::string_view identifier)
{
    services_.presenter.performSegue(*this, identifier, std::nullopt);
}

void HomeViewController::didHoldSearchResult(const data::VerbPtr& verb)
{
    selectedSearchResult = verb;
    services_.presenter.previewSegue(*this, platform::kShowSearchResultSegue, std::nullopt);
}

void HomeViewController::prepareForSegue(const platform::Segue& segue)
{
    if (segue.identifier == platform::kShowSearchResultSegue) {
        auto& detail = topOf<detail::VerbDetailTableViewController>(segue.destination);
        detail.selectedVerb = selectedSearchResult;
        detail.sequence = shownFrom(selectedSearchResult);
        detail.queue = queue;
        detail.isPeeking = false;
        detail.openedForm = openedForm_;
        detail.offerDisplayModeButton(splitViewController());
    } else if (segue.identifier == platform::kNavigationSegue) {
        topOf<NavigationDrawerTableTableViewController>(segue.destination).delegate = this;
    } else if (segue.identifier == platform::kOptionsSegue) {
        auto& options = topOf<OptionsTableViewController>(segue.destination);
        options.delegate = this;
        options.queue = queue;
        options.firstRow = firstOption_;
    }
}

void HomeViewController::showOptions()
{
    performSegue(platform::kOptionsSegue);
}

void HomeViewController::showMoreApps()
{
    performSegue(platform::kMoreAppsSegue);
}

void HomeViewController::contactSupport()
{
    supportEmailSender = std::make_shared<exporting::SupportEmailSender>(
        services_.bundle, services_.device, services_.mail, services_.urlOpener,
        services_.presenter);
    supportEmailSender->sender = this;
    supportEmailSender->start();
}

void HomeViewController::optionsClosed(bool fieldsChanged)
{
    if (!fieldsChanged) {
        return;
    }
    verbList().reloadVerbs();
    dynamic_cast<lists::HistoryTableViewController&>(*listFor(Tab::History)).reloadHistory();
    data::post(services_.notifications, data::RefreshConjugations{});
    sendCrashReportValues(services_.settings, services_.device, services_.crashReporter);
    // A list that was never shown reads its favourites when it is first shown.
    if (const auto& favourites = children_.at(static_cast<std::size_t>(Tab::Favourites))) {
        dynamic_cast<lists::FavouritesTableViewController&>(*favourites).reloadFavourites();
    }
    updateSearchResults();
}

} // namespace lumora::navigation
