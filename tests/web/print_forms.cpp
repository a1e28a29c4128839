// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "web/conjugation_table.h"
#include "web/content_source.h"

#include <sqlite3.h>

#include <cstdio>

// Prints all rows of the table of forms as the web edition makes them, in the
// order of the file: print_forms CONTENT_DIR.
int main(int argc, char** argv)
{
    if (argc != 2) {
        return 2;
    }
    lumora::web::ContentSource source{argv[1]};
    const lumora::web::ConjugationTable table{source};
    sqlite3* database = nullptr;
    sqlite3_open(":memory:", &database);
    const int code = sqlite3_exec(
        database, "SELECT _id, verbid, pronoun, verb, type, conj_order, display FROM conjugation",
        [](void*, int count, char** values, char**) {
            for (int column = 0; column < count; ++column) {
                std::printf("%s%c", values[column], column + 1 == count ? '\n' : '\t');
            }
            return 0;
        },
        nullptr, nullptr);
    sqlite3_close(database);
    return code == SQLITE_OK ? 0 : 1;
}
