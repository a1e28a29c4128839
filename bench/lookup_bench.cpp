// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "benches.h"
#include "database_world.h"
#include "lists/search_results_table_view_controller.h"
#include "lookup/lookup.h"
#include "support/search_texts.h"

#include <stdexcept>
#include <string>

namespace lumora::bench {
namespace {

constexpr std::string_view kLanguage = "en";
/// The part of the time for a key press that a reading may add.
constexpr double kPart = 1.0 / 3;

lookup::Lookup built(platform::DatabaseQueue& queue)
{
    platform::Result<lookup::Lookup> lookup = tl::unexpected(platform::Error{});
    queue.inDatabase(
        [&](platform::Database& database) { lookup = lookup::Lookup::build(database); });
    if (!lookup) {
        throw std::runtime_error(lookup.error().message);
    }
    return *std::move(lookup);
}

} // namespace

void measureLookup(Report& report, const std::filesystem::path& database)
{
    constexpr int kRounds = 5;

    DatabaseWorld world{database};
    world.settings().setValue(true, "IncludeEnglish");
    world.settings().setValue(true, "IncludeConjugations");
    lists::SearchResultsTableViewController results{world.services()};
    results.queue = &world.queue();
    results.search("parl");
    Figure making{"the index, once", {}, "a key", {}, {}, {}};
    auto lookup = built(world.queue());
    making.own.add(millisecondsOf([&] { lookup = built(world.queue()); }));
    Figure key{"a key that is read", {}, "its search alone", {}, {}, {}};
    Figure guess{"a guess", {}, "its search alone", {}, {}, {}};
    const auto read = [&](const std::string& text, lookup::Guesses guesses) {
        world.queue().inDatabase([&](platform::Database& connection) {
            use(lookup.read(connection, text, kLanguage, guesses));
        });
    };
    read("il fo", lookup::Guesses::Allowed);
    for (const char* text : support::kSearchTexts) {
        for (int round = 0; round < kRounds; ++round) {
            const auto searched = millisecondsOf([&] { results.search(text); });
            key.referenceSamples.add(searched);
            making.referenceSamples.add(searched);
            key.own.add(millisecondsOf([&] { read(text, lookup::Guesses::None); }));
        }
    }
    for (const char* text : {"apeller", "acceuillir", "recontrer", "il fo", "ils mangé", "qwx",
                             "le chat mange la souris", "bonjour à tous", "anticonstitutionnel"}) {
        for (int round = 0; round < kRounds; ++round) {
            guess.referenceSamples.add(millisecondsOf([&] { results.search(text); }));
            guess.own.add(millisecondsOf([&] { read(text, lookup::Guesses::Allowed); }));
        }
    }
    key.asked = "a third of the search at median and 95 %";
    key.holds = key.own.median() <= key.referenceSamples.median() * kPart &&
                key.own.p95() <= key.referenceSamples.p95() * kPart;
    report.add(making);
    report.add(key);
    report.add(guess);
}

} // namespace lumora::bench
