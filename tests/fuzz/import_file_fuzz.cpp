// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "backup/backup.h"
#include "backup/backup_document.h"
#include "fuzz/fuzz.h"
#include "support/world.h"

using namespace lumora;

/// Any bytes as a file to import favourites and history from: afterwards each
/// verb is there once, and what was understood can be written and read again.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr double kNow = 1.8e9;
    static support::World world;
    static const auto file = world.folder / "import.json";
    const fuzz::TimeLimit limit;
    const auto text = fuzz::textOf(data, size);
    if (const auto document = backup::parseDocument(text)) {
        const auto again = backup::parseDocument(backup::textOf(*document, kNow));
        fuzz::require(again && again->unreadable == 0 &&
                          again->favourites.size() == document->favourites.size() &&
                          again->history.size() == document->history.size(),
                      "what is written can be read");
    }
    support::writeContent(file, text);
    if (backup::restoreBackup(*world.queue, file, kNow)) {
        for (const char* table : {"favourite", "history"}) {
            const std::string name{table};
            fuzz::require(world.count(name) == world.count("(SELECT DISTINCT verbid FROM " + name +
                                                           " JOIN verb ON verb._id = verbid)"),
                          "each verb is there once");
        }
    }
    world.execute("DELETE FROM favourite");
    world.execute("DELETE FROM history");
    return 0;
}
