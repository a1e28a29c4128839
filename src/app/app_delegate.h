// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/tense_table.h"
#include "data/verb.h"
#include "platform/base/color.h"
#include "platform/screens/services.h"
#include "platform/screens/split_view_controller.h"
#include "platform/storage/database_queue.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace lumora::navigation {
class HomeViewController;
}

namespace lumora::platform {
class NavigationController;
}

namespace lumora::app {

/// A shortcut of the program's icon; `type` is one of a few fixed texts.
struct ShortcutItem {
    std::string type;
};

inline constexpr std::string_view kSearchShortcut = "com.brindle.shortcut.search";

/// Whether the type is one that leads somewhere; others do nothing.
bool isKnownShortcut(std::string_view type);

struct LaunchOptions {
    std::optional<ShortcutItem> shortcutItem;
};

/// The window and its root screen.
struct Window {
    std::shared_ptr<platform::ViewController> rootViewController;
};

/// Where the user's files are.
struct UserFolders {
    /// Of the user domain; none when it cannot be located.
    std::optional<std::filesystem::path> documents;
    /// The first documents folder of any domain, with "~" expanded, as text.
    std::optional<std::string> firstDocuments;
};

/// The colours that all bars share.
struct BarColors {
    platform::Color navigationBarTint;
    platform::Color navigationBarBackground;
    platform::Color navigationBarTitle;
    platform::Color tabBarTint;
    platform::Color segmentedControlTint;
};

/// Runs the launch: database, colours, panes, settings, shortcut; and
/// decides what a narrow window shows. GUI thread only; lives as long as the
/// program.
class AppDelegate final : public platform::SplitViewControllerDelegate {
public:
    /// `crashReporter` and `analytics` of the services run already, so that
    /// everything from here on may log. The services must outlive it.
    AppDelegate(const platform::Services& services, UserFolders folders,
                platform::Color accentPrimary);

    Window window;
    /// Empty when the database could not be prepared or opened.
    std::unique_ptr<platform::DatabaseQueue> queue;
    /// Not used by anything yet.
    bool hasInternetConnection = false;

    /// The window must hold its root screen by now. False when the launch came
    /// through a shortcut, which has been handled then.
    bool didFinishLaunching(const LaunchOptions& options);

    /// `completed` is always told true.
    void performActionForShortcutItem(const ShortcutItem& item,
                                      const std::function<void(bool)>& completed);

    /// Opens the verb that the link names as if it had been found by searching,
    /// or says that there is none. Of verbs with one name it opens the commonest
    /// and offers the others.
    void openLink(std::string_view link);

    /// Searches for the text, which comes from elsewhere; if asked to it also opens
    /// what is found first.
    void lookUp(std::string_view text, bool opens);

    /// Opens the verb of the id, if there is one, at that form if one is given.
    void openForm(std::int64_t verb, const std::optional<data::FormPlace>& place);

    const BarColors& barColors() const { return barColors_; }

    bool collapseSecondaryViewControllerOntoPrimary(platform::ViewController& secondary,
                                                    platform::ViewController& primary) override;

private:
    void openDatabase();
    void chooseBarColors();
    void wirePanes();
    void handleShortcutItem(const ShortcutItem& item);
    void openSearch();
    /// The commonest first; empty when there is none.
    std::vector<data::VerbPtr> verbsNamed(std::string_view infinitive);
    void openFromOutside(const data::VerbPtr& verb, const std::optional<data::FormPlace>& place);
    void offerHomographs(const std::vector<data::VerbPtr>& verbs);
    platform::SplitViewController& splitView();
    platform::NavigationController& listStack();
    navigation::HomeViewController& homeScreen();

    const platform::Services& services_;
    UserFolders folders_;
    platform::Color accentPrimary_;
    BarColors barColors_;
};

} // namespace lumora::app
