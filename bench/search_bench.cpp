// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/verb_reader.h"
#include "lists/search_query.h"
#include "lists/search_results_table_view_controller.h"
#include "shipped_database.h"
#include "support/fake_device.h"
#include "support/search_texts.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <functional>
#include <limits>
#include <string>
#include <vector>

namespace lumora::bench {
namespace {

using Milliseconds = std::chrono::duration<double, std::milli>;

double millisecondsOf(const std::function<void()>& work)
{
    const auto begin = std::chrono::steady_clock::now();
    work();
    return Milliseconds(std::chrono::steady_clock::now() - begin).count();
}

double percentile(std::vector<double> times, double part)
{
    std::sort(times.begin(), times.end());
    return times[static_cast<std::size_t>(
        std::lround(part * static_cast<double>(times.size() - 1)))];
}

/// Which texts of the list are measured, by the verbs that they find.
struct Range {
    std::size_t fewest = 0;
    std::size_t most = std::numeric_limits<std::size_t>::max();
};

/// Searches for every text of the list, from the start and anywhere, as the
/// results screen does; then with the same statement on the real table. The
/// counters tell, in milliseconds, what a key costs.
void searchList(benchmark::State& state, bool conjugations, Range range)
{
    constexpr int kRounds = 5;
    ShippedDatabase database;
    const support::FakeDevice device;
    database.settings.setValue(true, "IncludeEnglish");
    database.settings.setValue(conjugations, "IncludeConjugations");
    lists::SearchResultsTableViewController results{database.services()};
    results.queue = database.queue.get();
    const double first = millisecondsOf([&] { results.search("parl"); });

    std::vector<double> times;
    std::vector<double> stockTimes;
    std::vector<data::VerbPtr> found;
    for ([[maybe_unused]] auto _ : state) {
        for (const char* from : {"S", "W"}) {
            database.settings.setValue(std::string{from}, "SearchFrom");
            for (const char* text : support::kSearchTexts) {
                results.search(text);
                if (results.verbs.size() < range.fewest || results.verbs.size() > range.most) {
                    continue;
                }
                for (int round = 0; round < kRounds; ++round) {
                    times.push_back(millisecondsOf([&] { results.search(text); }));
                }
                stockTimes.push_back(millisecondsOf([&] {
                    found.clear();
                    const auto query = lists::makeSearchQuery(text, database.settings, device);
                    database.queue->inDatabase([&](platform::Database& connection) {
                        auto rows = connection.executeQuery(
                            query.statement,
                            {static_cast<std::size_t>(query.placeholders), query.pattern});
                        const data::VerbReader reader{*rows, data::VerbReader::Spellings::Plain};
                        while (rows->next()) {
                            found.push_back(reader.readVerb(*rows));
                        }
                    });
                }));
                if (found.size() != results.verbs.size()) {
                    state.SkipWithError("the two plans differ");
                    return;
                }
            }
        }
    }
    state.counters["patterns"] = static_cast<double>(stockTimes.size());
    state.counters["first"] = first;
    state.counters["median"] = percentile(times, 0.5);
    state.counters["p95"] = percentile(times, 0.95);
    state.counters["worst"] = percentile(times, 1);
    state.counters["stock_median"] = percentile(stockTimes, 0.5);
    state.counters["stock_p95"] = percentile(stockTimes, 0.95);
    state.counters["of_stock"] = percentile(times, 0.5) / percentile(stockTimes, 0.5);
}

constexpr std::size_t kFew = 500;
constexpr std::size_t kNearlyAll = 7000;

BENCHMARK_CAPTURE(searchList, with_conjugations, true, Range{})
    ->Name("search/with_conjugations")
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);
BENCHMARK_CAPTURE(searchList, headwords_few, false, Range{0, kFew})
    ->Name("search/headwords/up_to_500_verbs")
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);
BENCHMARK_CAPTURE(searchList, headwords_all, false, Range{kNearlyAll})
    ->Name("search/headwords/all_verbs")
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);

} // namespace
} // namespace lumora::bench
