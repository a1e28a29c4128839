// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "benches.h"
#include "data/verb_reader.h"
#include "database_world.h"
#include "lists/search_query.h"
#include "lists/search_results_table_view_controller.h"
#include "support/search_texts.h"

#include <fmt/format.h>

#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace lumora::bench {
namespace {

constexpr std::size_t kFewVerbs = 500;

/// The statement of the search on the real tables, read as the search reads it.
std::size_t searchByStockPlan(DatabaseWorld& world, const std::string& text)
{
    std::vector<data::VerbPtr> found;
    const auto query = lists::makeSearchQuery(text, world.settings(), world.world().device);
    world.queue().inDatabase([&](platform::Database& connection) {
        auto rows = connection.executeQuery(
            query.statement, {static_cast<std::size_t>(query.placeholders), query.pattern});
        const data::VerbReader reader{*rows, data::VerbReader::Spellings::Plain};
        while (rows->next()) {
            found.push_back(reader.readVerb(*rows));
        }
    });
    return found.size();
}

/// With what is made ready once for the life of the program.
Figure firstKeyFigure(const std::filesystem::path& database)
{
    constexpr int kStarts = 5;
    const std::string text = "parl";
    Figure figure{"the first key, conjugations searched", {}, "SQLite's own plan", {}, {}, {}};
    for (int start = 0; start < kStarts; ++start) {
        DatabaseWorld world{database};
        world.settings().setValue(true, "IncludeConjugations");
        lists::SearchResultsTableViewController results{world.services()};
        results.queue = &world.queue();
        figure.own.add(millisecondsOf([&] { results.search(text); }));
        figure.referenceSamples.add(millisecondsOf([&] { searchByStockPlan(world, text); }));
    }
    return figure;
}

} // namespace

SearchFigures searchFigures(const std::filesystem::path& database, int rounds, std::size_t stride)
{
    DatabaseWorld world{database};
    world.settings().setValue(true, "IncludeEnglish");
    lists::SearchResultsTableViewController results{world.services()};
    results.queue = &world.queue();
    const auto all = world.verbIds().size();
    SearchFigures figures{{"a key, conjugations searched", {}, "SQLite's own plan", {}, {}, {}},
                          {"the same with a typed wildcard", {}, "SQLite's own plan", {}, {}, {}},
                          {"a key, up to 500 verbs match", {}, "SQLite's own plan", {}, {}, {}},
                          {"a key, nearly all verbs match", {}, "SQLite's own plan", {}, {}, {}}};
    for (const bool conjugations : {true, false}) {
        world.settings().setValue(conjugations, "IncludeConjugations");
        // Packs the forms, once for the life of the program.
        results.search("parl");
        for (const char* from : {"S", "W"}) {
            world.settings().setValue(std::string{from}, "SearchFrom");
            for (std::size_t i = 0; i < std::size(support::kSearchTexts); i += stride) {
                const char* text = support::kSearchTexts[i];
                results.search(text);
                const auto matches = results.verbs.size();
                const bool wildcard =
                    std::string_view{text}.find_first_of("%_") != std::string_view::npos;
                Figure* figure = wildcard ? &figures.withWildcards : &figures.withConjugations;
                if (!conjugations && matches <= kFewVerbs) {
                    figure = &figures.fewVerbs;
                } else if (!conjugations && matches > all - all / 20) {
                    figure = &figures.allVerbs;
                } else if (!conjugations) {
                    continue;
                }
                for (int round = 0; round < rounds; ++round) {
                    figure->own.add(millisecondsOf([&] { results.search(text); }));
                }
                std::size_t matchesOfStock = 0;
                figure->referenceSamples.add(
                    millisecondsOf([&] { matchesOfStock = searchByStockPlan(world, text); }));
                if (matchesOfStock != matches) {
                    throw std::runtime_error(fmt::format("the plans differ for \"{}\"", text));
                }
            }
        }
    }
    return figures;
}

void measureSearch(Report& report, const std::filesystem::path& database)
{
    auto firstKey = firstKeyFigure(database);
    // Measured: 1/10 to 1/5, 95 % 1/8 to 1/7.
    holdAgainstReference(firstKey, {1.0 / 3, 1.0 / 3});
    report.add(firstKey);
    auto figures = searchFigures(database, 5, 1);
    // Asked for, and measured: 1/38 to 1/37, 95 % 1/15 to 1/14; and 1/17 to 1/12 for
    // a typed wildcard, which leaves more texts to compare.
    holdAgainstReference(figures.withConjugations, {1.0 / 35, 1.0 / 12});
    holdAgainstReference(figures.withWildcards, {1.0 / 6, 1.0 / 6});
    // The same plan, so the same time. Measured: 1.00 to 1.06, 95 % 1.01 to 1.07; and
    // 1.06 to 1.11, 95 % 0.72 to 1.22.
    holdAgainstReference(figures.fewVerbs, {1.5, 1.5});
    holdAgainstReference(figures.allVerbs, {1.5, 1.5});
    report.add(figures.withConjugations);
    report.add(figures.withWildcards);
    report.add(figures.fewVerbs);
    report.add(figures.allVerbs);
}

} // namespace lumora::bench
