// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "verbdb/verbdb.h"

#include "verbdb/content.h"
#include "verbdb/database_writer.h"
#include "verbdb/report.h"

#include <exception>
#include <ostream>

namespace lumora::verbdb {

namespace {

constexpr auto kUsage =
    "usage: verbdb CONTENT_DIR OUT.db\n"
    "       verbdb --report CONTENT_DIR\n"
    "       verbdb --help | --version\n"
    "\n"
    "Turns the text tables in CONTENT_DIR into the verb database OUT.db, or\n"
    "prints how much they hold. A bad table is refused with its file and line.\n";

} // namespace

int run(const std::vector<std::string>& arguments, std::ostream& output, std::ostream& errors)
{
    const auto first = arguments.empty() ? std::string() : arguments[0];
    if (arguments.size() == 1 && first == "--help") {
        output << kUsage;
        return 0;
    }
    if (arguments.size() == 1 && first == "--version") {
        output << "verbdb " << LUMORA_VERSION << "\n";
        return 0;
    }
    if (arguments.size() != 2 || (first.starts_with("-") && first != "--report")) {
        errors << kUsage;
        return 2;
    }

    try {
        if (first == "--report") {
            printReport(readContent(arguments[1]), output);
        } else {
            writeDatabase(readContent(first), arguments[1]);
        }
    } catch (const std::exception& error) {
        errors << error.what() << "\n";
        return 1;
    }
    return 0;
}

} // namespace lumora::verbdb
