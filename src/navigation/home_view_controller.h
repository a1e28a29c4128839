// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/news.h"
#include "data/verb.h"
#include "detail/verb_sequence.h"
#include "lists/search_results_table_view_controller.h"
#include "navigation/navigation_drawer_table_table_view_controller.h"
#include "navigation/options_table_view_controller.h"
#include "navigation/search_readings.h"
#include "platform/base/notification_center.h"
#include "platform/screens/services.h"
#include "platform/screens/view_controller.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lumora::lists {
class FavouritesTableViewController;
class HistoryTableViewController;
class InterstitialTableViewController;
class VerbListTableViewController;
} // namespace lumora::lists

namespace lumora::detail {
class VerbDetailTableViewController;
}

namespace lumora::platform {
class DatabaseQueue;
}

namespace lumora::navigation {

/// The tags of the tab bar's items.
enum class Tab { List = 0, Favourites = 1, History = 2 };

struct TabBarItem {
    Tab tag = Tab::List;
    std::string title;
    std::string image;
};

struct TabBar {
    std::vector<TabBarItem> items;
    Tab selectedItem = Tab::List;
};

/// The search field in the navigation bar.
struct SearchBar {
    std::string placeholder;
    std::string text;
    std::string accessibilityIdentifier;
    /// Whether the field has the keyboard, or is to get it. The view updates it when
    /// the user moves the keyboard elsewhere.
    bool isFirstResponder = false;
};

/// The first screen: three lists behind a tab bar, the search over them, and
/// the way to the options and to what the drawer offers.
///
/// A list screen is made when it is first shown and kept, as are the search
/// results. GUI thread only.
class HomeViewController final : public platform::ViewController,
                                 public lists::SearchResultsTableViewControllerDelegate,
                                 public OptionsTableViewControllerDelegate,
                                 public HomeViewControllerDelegate {
public:
    explicit HomeViewController(const platform::Services& services);
    ~HomeViewController() override;

    /// The verb detail screen of a split layout when this screen was built;
    /// empty otherwise.
    std::weak_ptr<platform::ViewController> detailViewController;
    /// The shared queue, handed on to every screen made here. Not owned; null
    /// when the database could not be opened.
    platform::DatabaseQueue* queue = nullptr;

    TabBar tabBar;
    SearchBar searchBar;
    /// The verb last chosen among the search results.
    data::VerbPtr selectedSearchResult;

    std::shared_ptr<exporting::SupportEmailSender> supportEmailSender;

    /// The list on show; null before the screen is built.
    const std::shared_ptr<platform::ViewController>& currentChild() const { return currentChild_; }
    /// Null before the screen is built.
    const std::shared_ptr<lists::SearchResultsTableViewController>& searchResultsController() const
    {
        return searchResultsController_;
    }

    /// What the text of the search may mean besides what it finds.
    const SearchReadings& readings() const { return *readings_; }
    lookup::Lookup& lookup() { return readings_->lookup(); }

    /// The list of all verbs, made by now or here.
    lists::VerbListTableViewController& verbList();

    /// Called when the tab bar, the search bar or the child has changed; one
    /// listener.
    void setOutletListener(std::function<void()> listener);

    /// Shows a tab. Ends the search, whose results would cover the tab.
    void didSelectItem(Tab tag);
    /// The user changed the text of the search field, or it is set from elsewhere.
    void searchTextChanged(std::string text);
    void updateSearchResults();
    /// The search runs again: a scope may change what is found.
    void selectedScopeButtonIndexDidChange(int scope);
    void searchBarCancelButtonClicked();
    /// Enter was pressed in the field: opens the first reading, else the first
    /// result.
    void searchBarSearchButtonClicked();
    /// Puts the cursor into the search field.
    void focusSearchBar();

    /// Opens the verb of a card, at the form where it names one.
    void didSelectReading(std::size_t card);
    /// Opens a verb as if it had been found, at a form if one is given.
    void showSearchResult(const data::VerbPtr& verb, const std::optional<data::FormPlace>& place);
    /// Opens the options at the one that searches the conjugated forms.
    void showFormsOption();

    void didSelectSearchResult(const data::VerbPtr& verb) override;
    void didHoldSearchResult(const data::VerbPtr& verb) override;
    void optionsClosed(bool fieldsChanged) override;
    void showOptions() override;
    void showMoreApps() override;
    void contactSupport() override;

    void viewWillAppear() override;
    void prepareForSegue(const platform::Segue& segue) override;
    void setSplitViewController(platform::SplitViewController* splitView) override;

protected:
    void viewDidLoad() override;

private:
    void performSegue(std::string_view identifier);
    void historyFeatureToggled(const data::HistoryFeatureToggled& news);
    /// Updates the stars of the search results, which observe no notifications.
    void verbFavouriteToggled(const data::VerbFavouriteToggled& news);
    void openTab(const data::TabOpenEvent& news);
    void makeSearchResultsController();
    void findDetailViewController();
    bool offers(Tab tab) const;
    void endSearch();
    void showTab(Tab tab);
    void buildTabBarItems();
    std::shared_ptr<lists::InterstitialTableViewController> listFor(Tab tab);
    /// What the search shows from the top, each verb once: the cards that the list does
    /// not have, then the list.
    detail::VerbSequence shownFrom(const data::VerbPtr& verb) const;
    void outletsChanged();

    const platform::Services& services_;
    /// Shared, so that delayed work can hold it weakly.
    std::shared_ptr<SearchReadings> readings_;
    /// The form and the option at which the next screen opens.
    std::optional<data::FormPlace> openedForm_;
    std::optional<platform::IndexPath> firstOption_;
    TabBarItem listTabBarItem_;
    TabBarItem favouritesTabBarItem_;
    TabBarItem historyTabBarItem_;
    std::shared_ptr<lists::SearchResultsTableViewController> searchResultsController_;
    std::vector<std::shared_ptr<lists::InterstitialTableViewController>> children_;
    std::shared_ptr<platform::ViewController> currentChild_;
    std::function<void()> outletListener_;
    platform::NotificationCenter::Subscription historyFeature_;
    platform::NotificationCenter::Subscription tabOpen_;
    platform::NotificationCenter::Subscription favouriteToggled_;
};

} // namespace lumora::navigation
