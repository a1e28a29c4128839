// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "detail/verb_detail_table_view_controller.h"
#include "shipped_database.h"

#include <benchmark/benchmark.h>

#include <string>

namespace lumora::bench {
namespace {

/// Reads the forms of one verb after another, as the detail screen does; the
/// history is off, so that no write to the disk is measured.
void openForms(benchmark::State& state)
{
    ShippedDatabase database;
    database.settings.setValue(false, "UseHistory");
    std::vector<std::int64_t> ids;
    database.queue->inDatabase([&](platform::Database& connection) {
        auto rows = connection.executeQuery("SELECT _id FROM verb ORDER BY _id", {});
        while (rows && rows->next()) {
            ids.push_back(rows->longForColumn(0));
        }
    });
    std::size_t next = 0;
    for ([[maybe_unused]] auto _ : state) {
        detail::VerbDetailTableViewController detail{database.services()};
        detail.queue = database.queue.get();
        detail.selectedVerb = std::make_shared<data::Verb>();
        detail.selectedVerb->id = ids[(next += 97) % ids.size()];
        detail.loadViewIfNeeded();
        benchmark::DoNotOptimize(detail.selectedVerb->indicatifPresent.data());
    }
}
BENCHMARK(openForms)->Name("verb/open_forms")->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace lumora::bench
