// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "benches.h"
#include "database_world.h"
#include "lists/verb_list_table_view_controller.h"

#include <sqlite3.h>

#include <array>
#include <string>
#include <vector>

namespace lumora::bench {
namespace {

constexpr const char* kListStatement =
    "SELECT distinct verb._id, english, portuguese, simplified_portuguese, german, "
    "simplified_german, french, simplified_french, dutch, simplified_dutch, spanish, "
    "simplified_spanish, italian, simplified_italian, substr(simplified_french, 1, 1) as "
    "index_letter, favourite._id as favourite_available\n"
    "FROM verb LEFT OUTER JOIN favourite ON verb._id = favourite.verbid\n"
    "ORDER BY simplified_french";

struct BareRow {
    sqlite3_int64 id = 0;
    sqlite3_int64 favourite = 0;
    std::array<std::string, 14> texts;
};

/// What the list costs at least: the same statement, the same columns copied
/// into strings, on a connection opened for it as the list's is.
void bareSqliteLoop(const std::filesystem::path& file)
{
    sqlite3* connection = nullptr;
    sqlite3_stmt* statement = nullptr;
    sqlite3_open(file.c_str(), &connection);
    sqlite3_prepare_v2(connection, kListStatement, -1, &statement, nullptr);
    std::vector<BareRow> rows;
    while (sqlite3_step(statement) == SQLITE_ROW) {
        auto& row = rows.emplace_back();
        row.id = sqlite3_column_int64(statement, 0);
        for (int column = 0; column < 14; ++column) {
            const auto* text = sqlite3_column_text(statement, column + 1);
            row.texts[static_cast<std::size_t>(column)].assign(
                reinterpret_cast<const char*>(text),
                static_cast<std::size_t>(sqlite3_column_bytes(statement, column + 1)));
        }
        row.favourite = sqlite3_column_int64(statement, 15);
    }
    sqlite3_finalize(statement);
    sqlite3_close(connection);
    use(rows);
}

} // namespace

Figure listFigure(const std::filesystem::path& database, int rounds)
{
    DatabaseWorld world{database};
    lists::VerbListTableViewController list{world.services()};
    list.queue = &world.queue();
    Figure figure{"list of all verbs", {}, "bare SQLite loop", {}, {}, {}};
    for (int round = 0; round < rounds; ++round) {
        figure.own.add(millisecondsOf([&] { list.reloadVerbs(); }));
        figure.referenceSamples.add(millisecondsOf([&] { bareSqliteLoop(database); }));
    }
    return figure;
}

void measureList(Report& report, const std::filesystem::path& database)
{
    auto figure = listFigure(database, 30);
    // Measured: 0.87, 95 % 0.97.
    holdAgainstReference(figure, {1.5, 2});
    report.add(figure);
}

} // namespace lumora::bench
