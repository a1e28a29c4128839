// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/start_up_fixture.h"

#include "app/old_settings_file.h"
#include "detail/verb_detail_table_view_controller.h"

// What a launch carries over and opens, once the database is there.
namespace lumora::app {
namespace {

using support::World;
using support::writeContent;
using testing::ElementsAre;

using Launch = StartUp;

std::string plist(const std::string& entries)
{
    return R"(<?xml version="1.0" encoding="UTF-8"?><plist version="1.0"><dict>)" + entries +
           "</dict></plist>";
}

TEST_F(Launch, CarriesOldSettingsOverOnceAndByKind)
{
    const struct {
        const char* why;
        std::string content;
        platform::SettingsStore::Values carried;
    } cases[] = {
        {"all four",
         plist("<key>IncludeEnglish</key><false/><key>SearchFrom</key><string>W</string>"
               "<key>SearchConjugations</key><integer>1</integer>"
               "<key>SortByLang</key><real>0.5</real><key>Other</key><true/>"),
         {{"IncludeEnglish", false},
          {"SearchFrom", std::string{"W"}},
          {"SearchConjugations", true},
          {"SortByLang", true}}},
        {"wrong kinds are skipped",
         plist("<key>SearchFrom</key><integer>1</integer><key>IncludeEnglish</key>"
               "<string>YES</string><key>SortByLang</key><integer>0</integer>"),
         {{"SortByLang", false}}},
        {"an array is no dictionary",
         R"(<?xml version="1.0"?><plist version="1.0"><array/></plist>)",
         {}},
        {"no property list", "IncludeEnglish=1", {}},
        {"empty", "", {}},
    };
    const auto file = documents / "lumora.plist";
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        World fresh;
        writeContent(file, c.content);

        carryOverOldSettings(documents.string(), fresh.settings, fresh.crashReporter);

        EXPECT_EQ(fresh.settings.values(), c.carried);
        EXPECT_FALSE(std::filesystem::exists(file));
        EXPECT_TRUE(fresh.crashReporter.lines.empty());
    }
}

TEST_F(Launch, ReadsTheDocumentsPathAsUrlText)
{
    const auto blank = world.folder / "with blank";
    const auto percent = world.folder / "a%62c";
    const auto decoded = world.folder / "abc";
    for (const auto& folder : {blank, percent, decoded}) {
        std::filesystem::create_directory(folder);
        writeContent(folder / "lumora.plist", plist("<key>SortByLang</key><false/>"));
    }

    carryOverOldSettings(blank.string(), world.settings, world.crashReporter);
    carryOverOldSettings(std::nullopt, world.settings, world.crashReporter);
    EXPECT_TRUE(world.settings.values().empty()) << "a blank makes no valid URL";
    EXPECT_TRUE(std::filesystem::exists(blank / "lumora.plist"));

    carryOverOldSettings(percent.string(), world.settings, world.crashReporter);
    EXPECT_FALSE(std::filesystem::exists(decoded / "lumora.plist"));
}

TEST_F(Launch, AnOldSettingsFileThatCannotBeDeletedIsReported)
{
    std::filesystem::create_directories(documents / "lumora.plist" / "x");

    carryOverOldSettings(documents.string(), world.settings, world.crashReporter);

    EXPECT_THAT(world.crashReporter.lines,
                ElementsAre("Unable to delete file. Will try again later. %@"));
}

TEST_F(Launch, AShortcutOpensItsTab)
{
    const struct {
        const char* type;
        navigation::Tab tab;
        int posts;
    } cases[] = {
        {"com.brindle.shortcut.favourite", navigation::Tab::Favourites, 1},
        {"com.brindle.shortcut.history", navigation::Tab::History, 1},
        {"com.brindle.shortcut.list", navigation::Tab::List, 1},
        {"com.brindle.shortcut.search", navigation::Tab::List, 0},
        {"com.brindle.shortcut.other", navigation::Tab::List, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.type);
        world.posted.clear();
        auto delegate = makeDelegate();

        EXPECT_FALSE(delegate.didFinishLaunching({ShortcutItem{c.type}}));

        EXPECT_EQ(world.posted["TabOpenEvent"], c.posts);
        EXPECT_EQ(homeOf(delegate).tabBar.selectedItem, c.tab);
        bool success = false;
        delegate.performActionForShortcutItem({c.type}, [&](bool done) { success = done; });
        EXPECT_TRUE(success);
    }
}

TEST_F(Launch, TheSearchShortcutComesBackToTheListAndFocusesTheField)
{
    world.device.tablet = true;
    auto delegate = makeDelegate();
    delegate.didFinishLaunching({});
    auto& split = splitOf(delegate);
    auto& stack = stackOf(delegate);
    auto& home = homeOf(delegate);
    home.loadViewIfNeeded();
    const ShortcutItem search{"com.brindle.shortcut.search"};

    delegate.performActionForShortcutItem(search, [](bool) {});
    world.clock.advance(std::chrono::milliseconds{200});
    EXPECT_FALSE(home.searchBar.isFirstResponder) << "two panes: nothing happens";

    split.setCollapsed(true);
    split.showDetailViewController(world.storyboard.instantiateDestination("showDetail"));
    ASSERT_EQ(stack.viewControllers().size(), 2U);
    delegate.performActionForShortcutItem(search, [](bool) {});
    EXPECT_EQ(stack.viewControllers().size(), 1U);
    EXPECT_FALSE(home.searchBar.isFirstResponder);
    world.clock.advance(std::chrono::milliseconds{100});
    EXPECT_TRUE(home.searchBar.isFirstResponder);
}

TEST_F(Launch, ALinkOpensItsVerbOverTheListOrSaysThatThereIsNone)
{
    auto delegate = makeDelegate();
    delegate.didFinishLaunching({});
    splitOf(delegate).showDetailViewController(
        world.storyboard.instantiateDestination("showDetail"));

    delegate.openLink("lumora://verb/%C3%A9vanouir");

    EXPECT_EQ(stackOf(delegate).viewControllers().size(), 1U) << "what was open has gone";
    ASSERT_NE(world.shownDetail(), nullptr);
    EXPECT_EQ(world.shownDetail()->selectedVerb->french, "évanouir (s')");
    EXPECT_EQ(world.shownDetail()->queue, delegate.queue.get());

    delegate.openLink("lumora://verb/alller");
    delegate.openLink("lumora://aller");
    ASSERT_EQ(world.presenter.alerts.size(), 2U);
    EXPECT_EQ(world.presenter.alerts[0].alert.message, "link.unknown");
    EXPECT_EQ(world.presenter.alerts[1].alert.message, "link.malformed");
    EXPECT_EQ(world.presenter.segues.size(), 1U);
}

TEST_F(Launch, ALinkToVerbsOfOneNameOpensTheCommonerAndOffersTheOther)
{
    auto delegate = makeDelegate();
    delegate.didFinishLaunching({});
    for (const char* sql : {
             "INSERT INTO verb(_id, french, english) VALUES (7, 'monter', 'take up'),"
             " (8, 'monter', 'go up')",
             "INSERT INTO verb_facts(verbid, auxiliary, use_class) VALUES (7, 'avoir', 2),"
             " (8, 'être', 1)",
         }) {
        support::executeOn(*delegate.queue, sql);
    }

    delegate.openLink("lumora://verb/monter");

    EXPECT_EQ(world.shownDetail()->selectedVerb->id, 8);
    ASSERT_EQ(world.presenter.alerts.size(), 1U);
    const auto& alert = world.presenter.alerts[0].alert;
    EXPECT_EQ(alert.title, "monter");
    EXPECT_EQ(alert.message, "link.homographs");
    ASSERT_EQ(alert.actions.size(), 2U);
    EXPECT_EQ(alert.actions[0].title, "take up");
    alert.actions[0].handler();
    EXPECT_EQ(world.shownDetail()->selectedVerb->id, 7);
    EXPECT_EQ(world.presenter.alerts.size(), 1U);

    world.settings.setValue(std::string{"fr"}, "translation_language");
    delegate.openLink("lumora://verb/monter");
    EXPECT_EQ(world.presenter.alerts.at(1).alert.actions[0].title, "monter (avoir)");
}

TEST_F(Launch, ANarrowWindowDropsOnlyAnEmptyDetailScreen)
{
    auto delegate = makeDelegate();
    delegate.didFinishLaunching({});
    const auto stackWith = [&](data::VerbPtr verb) {
        auto stack = std::dynamic_pointer_cast<platform::NavigationController>(
            world.storyboard.instantiateDestination("showDetail"));
        dynamic_cast<detail::VerbDetailTableViewController&>(*stack->topViewController())
            .selectedVerb = std::move(verb);
        return stack;
    };
    platform::NavigationController primary{stackWith(nullptr)};
    const auto collapses = [&](platform::ViewController& secondary) {
        return delegate.collapseSecondaryViewControllerOntoPrimary(secondary, primary);
    };
    platform::NavigationController home{
        world.storyboard.instantiateViewController("VerbListTableViewController")};
    platform::NavigationController none{stackWith(nullptr)};
    none.setViewControllers({});

    EXPECT_TRUE(collapses(*stackWith(nullptr)));
    EXPECT_FALSE(collapses(*stackWith(world.verb(3))));
    EXPECT_FALSE(collapses(home));
    EXPECT_FALSE(collapses(none));
    EXPECT_FALSE(collapses(*home.topViewController()));
}

TEST_F(Launch, AnotherRootThanASplitViewStopsTheProgram)
{
    auto delegate = makeDelegate();
    delegate.window.rootViewController = world.storyboard.instantiateDestination("showDetail");
    EXPECT_DEATH(delegate.didFinishLaunching({}), "not a split view");
}

} // namespace
} // namespace lumora::app
