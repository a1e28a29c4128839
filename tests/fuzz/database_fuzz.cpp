// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/database_preparation.h"
#include "detail/verb_detail_table_view_controller.h"
#include "export/export_data.h"
#include "fuzz/fuzz.h"
#include "lists/favourites_table_view_controller.h"
#include "lists/history_table_view_controller.h"
#include "lists/search_results_table_view_controller.h"
#include "lists/verb_list_table_view_controller.h"
#include "support/world.h"
#include "verbdb/content.h"
#include "verbdb/database_writer.h"

#include <algorithm>
#include <random>

using namespace lumora;

namespace {

/// A machine on which the program starts with whatever lies in the place of
/// its database.
class Machine {
public:
    Machine()
    {
        const auto tables = world_.folder / "tables";
        std::filesystem::create_directory(tables);
        std::filesystem::copy(LUMORA_FROZEN_CONTENT_DIR, tables);
        std::filesystem::copy(LUMORA_CONTENT_DIR "/models.tsv", tables / "models.tsv");
        auto content = verbdb::readContent(tables);
        content.verbs.resize(kVerbs);
        const auto resource = world_.folder / "resource.db";
        verbdb::writeDatabase(content, resource);
        world_.bundle.resources["verbs.db"] = resource;
        world_.bundle.info["CFBundleShortVersionString"] = "2.0";

        const auto used = world_.folder / "used.db";
        std::filesystem::copy_file(resource, used);
        {
            const auto queue = platform::DatabaseQueue::open(platform::fileUrl(used));
            support::executeOn(*queue, "INSERT INTO favourite(verbid) SELECT _id FROM verb");
            support::executeOn(*queue,
                               "INSERT INTO history(verbid, timestamp) SELECT _id, 7e8 FROM verb");
        }
        good_ = support::contentOf(used);
    }

    /// A database as it should be.
    const std::string& good() const { return good_; }

    void install(std::string_view bytes)
    {
        std::filesystem::remove_all(documents_);
        std::filesystem::create_directory(documents_);
        support::writeContent(app::workingDatabase(documents_), bytes);
    }

    bool start(const char* installedVersion)
    {
        world_.settings.setValue(std::string{installedVersion}, "installed_version");
        return app::prepareDatabase(documents_, world_.bundle, world_.settings,
                                    world_.crashReporter)
            .has_value();
    }

    /// Every list, a search of every kind, a verb that is opened and starred.
    void goThroughScreens()
    {
        const auto queue =
            platform::DatabaseQueue::open(platform::fileUrl(app::workingDatabase(documents_)));
        if (!queue) {
            return;
        }
        std::vector<data::VerbPtr> verbs;
        lists::VerbListTableViewController list{world_.services()};
        list.queue = queue.get();
        list.reloadVerbs();
        for (const auto& [letter, section] : list.verbs) {
            verbs.insert(verbs.end(), section.begin(), section.end());
        }
        for (const bool conjugations : {true, false}) {
            world_.settings.setValue(conjugations, "IncludeConjugations");
            world_.settings.setValue(std::string{conjugations ? "W" : "S"}, "SearchFrom");
            lists::SearchResultsTableViewController results{world_.services()};
            results.queue = queue.get();
            for (const char* text : {"al", "%e_", ""}) {
                results.search(text);
            }
            verbs.insert(verbs.end(), results.verbs.begin(), results.verbs.end());
        }
        for (std::size_t i = 0; i < verbs.size(); i += 1 + verbs.size() / 4) {
            detail::VerbDetailTableViewController detail{world_.services()};
            detail.queue = queue.get();
            detail.selectedVerb = verbs[i];
            detail.loadViewIfNeeded();
            detail.selectVerbTypes(1);
            static_cast<void>(exporting::exportData(*detail.selectedVerb, world_.bundle,
                                                    world_.settings, world_.device));
        }
        lists::FavouritesTableViewController favourites{world_.services()};
        favourites.queue = queue.get();
        favourites.loadViewIfNeeded();
        lists::HistoryTableViewController history{world_.services()};
        history.queue = queue.get();
        history.loadViewIfNeeded();
        forgetWhatWasRecorded();
    }

private:
    void forgetWhatWasRecorded()
    {
        world_.crashReporter.lines.clear();
        world_.presenter.segues.clear();
        world_.analytics.events.clear();
        world_.console.str("");
    }

    static constexpr std::size_t kVerbs = 3;

    support::World world_;
    std::string good_;
    std::filesystem::path documents_ = world_.folder / "documents";
};

Machine& machine()
{
    static Machine machine;
    return machine;
}

} // namespace

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maximum);

/// Mostly a database with some bytes changed: what is no database at all is
/// refused before anything of ours reads it.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maximum, unsigned seed)
{
    constexpr std::size_t kPage = 4096;
    std::minstd_rand random{seed};
    const auto& good = machine().good();
    if (size < kPage || random() % 16 == 0) {
        size = std::min(good.size(), maximum);
        std::copy_n(good.begin(), size, data);
    }
    if (random() % 16 == 0) {
        return LLVMFuzzerMutate(data, size, maximum);
    }
    for (auto changes = 1 + random() % 16; changes > 0; --changes) {
        // The heads of the file and of its pages are what SQLite steers by.
        const auto page = random() % std::max<std::size_t>(size / kPage, 1) * kPage;
        const auto within = random() % (random() % 2 == 0 ? 128 : kPage);
        if (page + within < size) {
            data[page + within] = static_cast<std::uint8_t>(random());
        }
    }
    return size;
}

/// Any bytes as the working database: the program starts and shows what can be
/// read of it; an update puts a good one in its place.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const fuzz::TimeLimit limit;
    machine().install(fuzz::textOf(data, size));
    if (machine().start("2.0")) {
        machine().goThroughScreens();
    }
    machine().start("1.0");
    machine().goThroughScreens();
    return 0;
}
