// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lists/search_query.h"
#include "lists/search_results_table_view_controller.h"
#include "support/search_texts.h"
#include "support/stock_sqlite.h"
#include "support/world.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <string>
#include <vector>

namespace lumora {
namespace {

using support::World;

/// The database that ships, searched through its forms as the screen does and
/// on the real table.
class FormSearch : public testing::Test {
protected:
    using Rows = std::vector<support::Row>;

    void SetUp() override
    {
        std::filesystem::copy_file(LUMORA_VERBS_DB, world_.folder / "shipped.db");
        world_.queue =
            platform::DatabaseQueue::open(platform::fileUrl(world_.folder / "shipped.db"));
        world_.settings.setValue(true, "IncludeConjugations");
        world_.execute("INSERT INTO favourite (verbid) SELECT _id FROM verb WHERE _id % 7 = 0");
        world_.execute("INSERT INTO favourite (verbid) SELECT _id FROM verb WHERE _id % 21 = 0");
    }

    /// By SQLite as it comes, on a connection of its own.
    Rows onTheRealTable(const std::string& text) const
    {
        const auto query = lists::makeSearchQuery(text, world_.settings, world_.device);
        Rows found;
        support::forEachRow(
            world_.folder / "shipped.db", query.statement,
            [&](const support::Row& row) {
                found.push_back({row[0], row[2], row[15] == "NULL" ? "" : "favourite"});
            },
            query.pattern);
        return found;
    }

    Rows onTheScreen(const std::string& text)
    {
        results_.queue = world_.queue.get();
        results_.search(text);
        Rows found;
        for (const auto& verb : results_.verbs) {
            found.push_back(
                {std::to_string(verb->id), verb->french, verb->isFavourite ? "favourite" : ""});
        }
        return found;
    }

    World world_;
    lists::SearchResultsTableViewController results_{world_.services()};
};

TEST_F(FormSearch, ShowsWhatTheRealTableHolds)
{
    std::vector<std::string> texts(std::begin(support::kSearchTexts),
                                   std::end(support::kSearchTexts));
    const char* const pieces[] = {"a",  "E",    "r",    "ai",  "ons", "é",    "î",    "'",
                                  "_",  "%",    "ss",   "ent", " ",   "avoi", "\xC3", "\xA9",
                                  "(s", "\xFF", "\xE2", "ù",   "qu",  "été ", "ge",   "\u2019"};
    std::mt19937 random(19);
    for (int i = 0; i < 24; ++i) {
        std::string text;
        for (auto left = 1 + random() % 4; left > 0; --left) {
            text += pieces[random() % std::size(pieces)];
        }
        texts.push_back(text);
    }
    texts.emplace_back(300, 'e');
    texts.push_back(std::string(70, '_') + "e");

    std::size_t all = 0;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        SCOPED_TRACE(testing::PrintToString(texts[i]));
        world_.settings.setValue(std::string(i % 2 == 0 ? "S" : "W"), "SearchFrom");
        world_.settings.setValue(i % 3 != 0, "IncludeEnglish");
        world_.settings.setValue(i % 5 != 0, "SortByLang");
        world_.settings.setValue(i % 4 != 0, "IncludeConjugations");

        const Rows found = onTheScreen(texts[i]);

        EXPECT_EQ(found, onTheRealTable(texts[i]));
        all += found.size();
    }
    EXPECT_GT(all, 10000U);
}

/// Every verb's helper row says what its forms are.
TEST_F(FormSearch, TheHelperTableHoldsEveryFormOnce)
{
    EXPECT_EQ(world_.count("verb WHERE _id NOT IN (SELECT verbid FROM packed_forms)"), 0);
    EXPECT_EQ(world_.count("conjugation JOIN packed_forms USING (verbid) WHERE instr(forms, "
                           "x'00' || CAST(lower(verb) AS BLOB) || x'00') = 0"),
              0);
    EXPECT_EQ(world_.count("(SELECT verbid, sum(length(form) + 1) + 1 AS size FROM (SELECT "
                           "DISTINCT verbid, CAST(lower(verb) AS BLOB) AS form FROM conjugation) "
                           "GROUP BY verbid) JOIN packed_forms USING (verbid) WHERE "
                           "length(forms) <> size"),
              0);
    EXPECT_LT(std::filesystem::file_size(LUMORA_VERBS_DB), 62U * 1000 * 1000);
}

} // namespace
} // namespace lumora
