// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/app_delegate.h"

#include "app/database_preparation.h"
#include "app/deep_link.h"
#include "app/old_settings_file.h"
#include "data/homographs.h"
#include "data/news.h"
#include "data/verb_reader.h"
#include "detail/verb_detail_table_view_controller.h"
#include "navigation/home_view_controller.h"
#include "platform/machine/bundle.h"
#include "platform/machine/clock.h"
#include "platform/machine/crash_reporter.h"
#include "platform/machine/device.h"
#include "platform/screens/alert.h"
#include "platform/screens/navigation_controller.h"
#include "platform/screens/presenter.h"
#include "platform/storage/database.h"
#include "platform/storage/database_queue.h"
#include "platform/storage/settings_store.h"
#include "settings/default_settings.h"
#include "text/text.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <ostream>
#include <utility>
#include <vector>

namespace lumora::app {

namespace {

constexpr std::pair<std::string_view, std::string_view> kTabShortcuts[] = {
    {"com.brindle.shortcut.favourite", data::TabOpenEvent::kFavourites},
    {"com.brindle.shortcut.history", data::TabOpenEvent::kHistory},
    {"com.brindle.shortcut.list", data::TabOpenEvent::kList},
};

[[noreturn]] void stop(const char* why)
{
    std::fprintf(stderr, "lumora: %s\n", why);
    std::abort();
}

/// Rows that are written then need not wait for the disk: the end of the process
/// loses none of them, and a power cut only the last. Where SQLite cannot do so,
/// each goes on reaching the disk before the next.
void writeAhead(platform::Database& database)
{
    bool done = false;
    {
        auto mode = database.executeQuery("PRAGMA journal_mode = WAL", {});
        done = mode && mode->next() && mode->stringForColumn(0) == "wal";
    }
    if (done) {
        static_cast<void>(database.executeUpdate("PRAGMA synchronous = NORMAL", {}));
    }
}

} // namespace

bool isKnownShortcut(std::string_view type)
{
    return type == kSearchShortcut ||
           std::any_of(std::begin(kTabShortcuts), std::end(kTabShortcuts),
                       [type](const auto& shortcut) { return shortcut.first == type; });
}

AppDelegate::AppDelegate(const platform::Services& services, UserFolders folders,
                         platform::Color accentPrimary)
    : services_{services}, folders_{std::move(folders)}, accentPrimary_{accentPrimary}
{}

bool AppDelegate::didFinishLaunching(const LaunchOptions& options)
{
    openDatabase();
    chooseBarColors();
    wirePanes();
    settings::seedDefaultSettings(services_.settings);
    // After the seeding, so that carried values win.
    carryOverOldSettings(folders_.firstDocuments, services_.settings, services_.crashReporter);
    if (options.shortcutItem) {
        // The home screen has to be there to hear which tab is asked for.
        homeScreen().loadViewIfNeeded();
        handleShortcutItem(*options.shortcutItem);
        return false;
    }
    return true;
}

void AppDelegate::openDatabase()
{
    const auto fail = [this](std::string_view why) {
        services_.console << "Unable to initialise database " << why << std::endl;
    };
    if (!folders_.documents) {
        fail("The documents directory cannot be located.");
        return;
    }
    const auto prepared = prepareDatabase(*folders_.documents, services_.bundle, services_.settings,
                                          services_.crashReporter);
    if (!prepared) {
        fail(prepared.error().message);
        return;
    }
    // A file that somebody removes meanwhile must stay away, so that the next
    // start sees that it is missing.
    queue = platform::DatabaseQueue::open(
        platform::existingFileUrl(workingDatabase(*folders_.documents)));
    if (queue) {
        queue->inDatabase(writeAhead);
    }
}

void AppDelegate::chooseBarColors()
{
    barColors_ = {platform::kWhiteColor, accentPrimary_, platform::kWhiteColor, accentPrimary_,
                  platform::kDarkGrayColor};
}

platform::SplitViewController& AppDelegate::splitView()
{
    auto* split = dynamic_cast<platform::SplitViewController*>(window.rootViewController.get());
    if (split == nullptr) {
        stop("the root screen is not a split view");
    }
    return *split;
}

void AppDelegate::wirePanes()
{
    auto& split = splitView();
    auto* details = dynamic_cast<platform::NavigationController*>(split.viewControllers().back());
    if (details == nullptr || details->topViewController() == nullptr) {
        stop("the detail pane is not a navigation stack");
    }
    auto item = details->topViewController()->navigationItem();
    item.leftBarButton = split.displayModeButtonItem();
    details->topViewController()->setNavigationItem(std::move(item));
    split.setDelegate(this);
    homeScreen().queue = queue.get();
    split.setCollapsed(!services_.device.isTablet());
}

platform::NavigationController& AppDelegate::listStack()
{
    auto* lists =
        dynamic_cast<platform::NavigationController*>(splitView().viewControllers().front());
    if (lists == nullptr || lists->viewControllers().empty()) {
        stop("the list pane is not a navigation stack");
    }
    return *lists;
}

navigation::HomeViewController& AppDelegate::homeScreen()
{
    auto* home =
        dynamic_cast<navigation::HomeViewController*>(listStack().viewControllers().front().get());
    if (home == nullptr) {
        stop("the first screen is not the home screen");
    }
    return *home;
}

void AppDelegate::performActionForShortcutItem(const ShortcutItem& item,
                                               const std::function<void(bool)>& completed)
{
    handleShortcutItem(item);
    completed(true);
}

void AppDelegate::handleShortcutItem(const ShortcutItem& item)
{
    if (item.type == kSearchShortcut) {
        openSearch();
        return;
    }
    for (const auto& [type, tab] : kTabShortcuts) {
        if (item.type == type) {
            data::post(services_.notifications, data::TabOpenEvent{std::string{tab}});
            return;
        }
    }
}

void AppDelegate::openSearch()
{
    auto& split = splitView();
    if (!split.isCollapsed()) {
        return;
    }
    auto* stack = dynamic_cast<platform::NavigationController*>(split.viewControllers().front());
    if (stack == nullptr) {
        return;
    }
    if (dynamic_cast<navigation::HomeViewController*>(stack->topViewController()) == nullptr) {
        stack->popToRootViewController();
    }
    services_.clock.runLater(std::chrono::milliseconds{100}, [stack] {
        auto* home = dynamic_cast<navigation::HomeViewController*>(stack->topViewController());
        if (home != nullptr) {
            home->focusSearchBar();
        }
    });
}

void AppDelegate::openLink(std::string_view link)
{
    auto& home = homeScreen();
    home.loadViewIfNeeded();
    const auto target = DeepLink::parse(link);
    const auto verbs = target ? verbsNamed(target->infinitive) : std::vector<data::VerbPtr>{};
    if (verbs.empty()) {
        // The message does not repeat the name: the link comes from outside.
        const auto text = [this](std::string_view key) {
            return platform::localizedString(services_.bundle, key);
        };
        services_.presenter.presentAlert(
            home, platform::notice({}, text(target ? "link.unknown" : "link.malformed"),
                                   text("common.ok")));
        return;
    }
    openFromOutside(verbs.front(), std::nullopt);
    if (verbs.size() > 1) {
        offerHomographs({verbs.begin() + 1, verbs.end()});
    }
}

void AppDelegate::openFromOutside(const data::VerbPtr& verb,
                                  const std::optional<data::FormPlace>& place)
{
    // Links do not pile up: going back from the verb always leads to the list.
    listStack().popToRootViewController();
    homeScreen().showSearchResult(verb, place);
}

void AppDelegate::lookUp(std::string_view text, bool opens)
{
    auto& home = homeScreen();
    home.loadViewIfNeeded();
    listStack().popToRootViewController();
    home.searchTextChanged(text::trimmed(text));
    if (opens) {
        home.searchBarSearchButtonClicked();
    }
}

void AppDelegate::openForm(std::int64_t verb, const std::optional<data::FormPlace>& place)
{
    if (queue == nullptr) {
        return;
    }
    homeScreen().loadViewIfNeeded();
    std::vector<data::VerbPtr> found;
    queue->inDatabase([&](platform::Database& database) {
        if (!data::readVerbOfId(database, verb, found)) {
            services_.crashReporter.logWithFormat(
                "An error occurred when opening a form: %@ (%d)",
                {database.lastErrorMessage(), database.lastErrorCode()});
        }
    });
    if (!found.empty()) {
        openFromOutside(found.front(), place);
    }
}

void AppDelegate::offerHomographs(const std::vector<data::VerbPtr>& verbs)
{
    platform::Alert alert{
        verbs.front()->french, platform::localizedString(services_.bundle, "link.homographs"), {}};
    for (const auto& verb : verbs) {
        const auto& translation = verb->translation(services_.settings, services_.device);
        const bool told = translation != verb->french || verb->distinction.empty();
        alert.actions.push_back({told ? translation : verb->french + " (" + verb->distinction + ")",
                                 platform::ActionStyle::Normal,
                                 [this, verb] { openFromOutside(verb, std::nullopt); }});
    }
    alert.actions.push_back({platform::localizedString(services_.bundle, "common.ok"),
                             platform::ActionStyle::Cancel, nullptr});
    services_.presenter.presentAlert(homeScreen(), alert);
}

std::vector<data::VerbPtr> AppDelegate::verbsNamed(std::string_view infinitive)
{
    std::vector<data::VerbPtr> found;
    if (queue == nullptr) {
        return found;
    }
    queue->inDatabase([&](platform::Database& database) {
        const auto ids = homeScreen().lookup().verbsNamed(database, infinitive);
        bool read = ids.has_value();
        for (std::size_t i = 0; read && i < ids->size(); ++i) {
            read = data::readVerbOfId(database, (*ids)[i], found);
        }
        if (read && found.size() > 1) {
            read = data::putCommonestFirst(database, found) &&
                   data::distinguishHomographs(database, found);
        }
        if (!read) {
            found.clear();
            services_.crashReporter.logWithFormat(
                "An error occurred when looking up a link: %@ (%d)",
                {database.lastErrorMessage(), database.lastErrorCode()});
        }
    });
    return found;
}

bool AppDelegate::collapseSecondaryViewControllerOntoPrimary(platform::ViewController& secondary,
                                                             platform::ViewController& /*primary*/)
{
    auto* stack = dynamic_cast<platform::NavigationController*>(&secondary);
    if (stack == nullptr) {
        return false;
    }
    const auto* detail =
        dynamic_cast<detail::VerbDetailTableViewController*>(stack->topViewController());
    return detail != nullptr && detail->selectedVerb == nullptr;
}

} // namespace lumora::app
