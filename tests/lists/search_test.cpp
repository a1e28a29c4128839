// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/news.h"
#include "lists/search_query.h"
#include "lists/search_results_table_view_controller.h"

#include "support/world.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using lists::SearchResultsTableViewController;
using platform::SettingValue;
using support::World;

const std::string kColumns =
    "SELECT verb._id, english, lower(french) as french, simplified_french, german, "
    "simplified_german, spanish, simplified_spanish, dutch, simplified_dutch, italian, "
    "simplified_italian, portuguese, simplified_portuguese, substr(";

using Settings = std::vector<std::pair<const char*, SettingValue>>;

TEST(SearchQuery, AssemblesTheStatementFromTheSettings)
{
    const struct {
        const char* why;
        Settings settings;
        const char* text;
        std::string statement;
        const char* pattern;
        int placeholders;
    } cases[] = {
        {"everything on, in German",
         {{"SortByLang", false},
          {"translation_language", std::string{"de"}},
          {"IncludeEnglish", true},
          {"SearchFrom", std::string{"W"}},
          {"IncludeConjugations", true}},
         "geh",
         kColumns +
             "simplified_german, 0, 1) as index_letter, favourite._id as favourite_available FROM "
             "verb\nLEFT OUTER JOIN conjugation ON verb._id = conjugation.verbid\nLEFT OUTER JOIN "
             "favourite ON verb._id = favourite.verbid\nWHERE french LIKE ? OR simplified_french "
             "LIKE ? OR german LIKE ? OR simplified_german LIKE ? OR conjugation.verb like ?\n"
             "GROUP BY verb._id\nORDER BY simplified_german",
         "%geh%",
         5},
        {"values of other kinds are none, and English names its column twice",
         {{"SortByLang", true},
          {"translation_language", std::string{"tr"}},
          {"IncludeEnglish", true},
          {"IncludeConjugations", std::int64_t{1}},
          {"SearchFrom", std::int64_t{7}}},
         "go",
         kColumns +
             "simplified_french, 0, 1) as index_letter, favourite._id as favourite_available FROM "
             "verb\n\nLEFT OUTER JOIN favourite ON verb._id = favourite.verbid\nWHERE french LIKE "
             "? OR simplified_french LIKE ? OR english LIKE ? OR english LIKE ?\n\nORDER BY "
             "simplified_french",
         "go%",
         4},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        World world;
        for (const auto& [key, value] : c.settings) {
            world.settings.setValue(value, key);
        }

        const auto query = lists::makeSearchQuery(c.text, world.settings, world.device);

        EXPECT_EQ(query.statement, c.statement);
        EXPECT_EQ(query.pattern, c.pattern);
        EXPECT_EQ(query.placeholders, c.placeholders);
    }
}

TEST(SearchResults, FindsWhatAPersonTypes)
{
    const std::pair<const char*, SettingValue> anywhere{"SearchFrom", std::string{"W"}};
    const std::pair<const char*, SettingValue> translations{"IncludeEnglish", true};
    const std::pair<const char*, SettingValue> conjugations{"IncludeConjugations", true};
    const struct {
        const char* text;
        Settings settings;
        std::vector<std::string> found;
    } cases[] = {
        {"aller", {}, {"aller"}},
        {"ALL", {}, {"aller"}},
        {"etre", {}, {"être"}},
        {"évan", {}, {"évanouir (s')"}},
        {"(s\u2019", {anywhere}, {"évanouir (s')"}},
        {"go", {}, {}},
        {"go", {translations}, {"aller"}},
        {"vais", {}, {}},
        {"vais", {conjugations}, {"aller"}},
        {"va", {conjugations}, {"aller"}},
        {"%", {}, {"aller", "avoir", "être", "évanouir (s')", "falloir", "pouvoir"}},
        {"_voir", {}, {"avoir"}},
        {"", {anywhere}, {"aller", "avoir", "être", "évanouir (s')", "falloir", "pouvoir"}},
        {"aller\n", {}, {}},
        {"\U0001F600'\"", {anywhere, conjugations}, {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        World world;
        for (const auto& [key, value] : c.settings) {
            world.settings.setValue(value, key);
        }
        const auto results = world.load<SearchResultsTableViewController>();

        results->search(c.text);

        EXPECT_EQ(support::infinitives(results->verbs), c.found);
        EXPECT_TRUE(world.crashReporter.lines.empty());
        EXPECT_EQ(results->numberOfRowsInSection(0), static_cast<int>(c.found.size()));
    }
}

TEST(SearchResults, AResultBecomesAFavouriteAsInTheListOfAllVerbs)
{
    World world;
    const auto results = world.load<SearchResultsTableViewController>();
    results->search("a");
    const platform::ViewController* sender = nullptr;
    const auto subscription = data::observe<data::VerbFavouriteToggled>(
        world.notifications, [&](const auto& news) { sender = news.sender; });
    const auto avoir = results->pathOfVerb(results->verbs.at(1)->id);
    ASSERT_EQ(avoir, (platform::IndexPath{0, 1}));
    EXPECT_TRUE(results->canEditRow(*avoir));

    bool completed = false;
    results->trailingSwipeActions(*avoir).at(0).handler([&](bool done) { completed = done; });

    EXPECT_TRUE(completed);
    EXPECT_EQ(sender, results.get());
    EXPECT_EQ(world.count("favourite JOIN verb ON verb._id = verbid WHERE french = 'avoir'"), 1);
    EXPECT_EQ(world.table(*results).reloadedRows, std::vector{*avoir});
    EXPECT_EQ(results->cellForRow(*avoir).image, "ic_favorite_list");
    EXPECT_EQ(results->trailingSwipeActions(*avoir).at(0).title, "action.favourite.remove");
    EXPECT_FALSE(results->pathOfVerb(4711));
}

TEST(SearchResults, AFailureIsLoggedAndEmptiesTheList)
{
    World world;
    SearchResultsTableViewController results{world.services()};
    results.search("a");
    EXPECT_EQ(world.table(results).reloads, 0) << "no queue, nothing to show";

    results.queue = world.queue.get();
    results.search("a");
    world.execute("DROP TABLE favourite");
    results.search("a\u2019");

    EXPECT_TRUE(results.verbs.empty());
    EXPECT_EQ(results.query, "a'");
    EXPECT_EQ(world.crashReporter.lines,
              std::vector<std::string>{
                  "An error occurred when performing search: no such table: favourite (1)"});
}

} // namespace
} // namespace lumora
