// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "benches.h"
#include "database_world.h"
#include "lists/search_results_table_view_controller.h"
#include "lookup/lookup.h"
#include "navigation/home_view_controller.h"
#include "support/search_texts.h"

#include <stdexcept>
#include <string>

namespace lumora::bench {
namespace {

/// What a key may cost in the window beside its search alone.
constexpr Limits kBesideSearch{4.0 / 3, 4.0 / 3};
constexpr int kReadings = 5;

/// As the window does it once it is open.
double millisecondsToPrepare(platform::DatabaseQueue& queue)
{
    lookup::Lookup lookup;
    return millisecondsOf([&] {
        queue.inDatabase([&](platform::Database& database) {
            if (const auto ready = lookup.prepare(database); !ready) {
                throw std::runtime_error(ready.error().message);
            }
        });
    });
}

/// Every text as it is typed into the window. The rounds go over all texts, so that
/// none finds what the same text has just left in memory.
template <typename Texts>
Figure keyFigure(DatabaseWorld& world, const char* what, bool forms, const Texts& texts)
{
    world.settings().setValue(forms, "IncludeConjugations");
    const auto home = world.world().load<navigation::HomeViewController>();
    lists::SearchResultsTableViewController alone{world.services()};
    alone.queue = &world.queue();
    Figure figure{what, {}, "its search alone", {}, {}, {}};
    home->searchTextChanged("il fo");
    alone.search("il fo");
    for (int round = 0; round < kReadings; ++round) {
        for (const char* text : texts) {
            figure.referenceSamples.add(millisecondsOf([&] { alone.search(text); }));
            figure.own.add(millisecondsOf([&] { home->searchTextChanged(text); }));
        }
    }
    return figure;
}

} // namespace

void measureLookup(Report& report, const std::filesystem::path& database)
{
    constexpr const char* kGuesses[] = {"apeller",
                                        "acceuillir",
                                        "recontrer",
                                        "il fo",
                                        "ils mang\u00E9",
                                        "qwx",
                                        "le chat mange la souris",
                                        "bonjour \u00E0 tous",
                                        "anticonstitutionnel"};

    DatabaseWorld world{database};
    world.settings().setValue(true, "IncludeEnglish");
    Figure making{"the index, once", {}, {}, {}, {}, {}};
    for (int round = 0; round < kReadings; ++round) {
        making.own.add(millisecondsToPrepare(world.queue()));
    }
    report.add(making);
    auto names = keyFigure(world, "a key, names searched", false, support::kSearchTexts);
    holdAgainstReference(names, kBesideSearch);
    report.add(names);
    auto forms = keyFigure(world, "a key, forms searched", true, support::kSearchTexts);
    holdAgainstReference(forms, kBesideSearch);
    report.add(forms);
    report.add(keyFigure(world, "a key that finds nothing, names searched", false, kGuesses));
    report.add(keyFigure(world, "a key that finds nothing, forms searched", true, kGuesses));
}

} // namespace lumora::bench
