// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "verbdb/verbdb.h"

#include "verbdb/content.h"
#include "verbdb/database_writer.h"
#include "verbdb/multiplied_content.h"
#include "verbdb/report.h"

#include <charconv>
#include <exception>
#include <ostream>
#include <system_error>

namespace lumora::verbdb {

namespace {

constexpr auto kUsage =
    "usage: verbdb [--times N] CONTENT_DIR OUT.db\n"
    "       verbdb --report CONTENT_DIR\n"
    "       verbdb --help | --version\n"
    "\n"
    "Turns the text tables in CONTENT_DIR into the verb database OUT.db, or\n"
    "prints how much they hold. A bad table is refused with its file and line.\n"
    "With --times each verb is there N times, all but one of them made up, for\n"
    "measurements of growth.\n";

/// The number of a "--times N" at the front, which is taken off the arguments;
/// 0 for a bad one.
int takeTimes(std::vector<std::string>& arguments)
{
    if (arguments.size() < 2 || arguments[0] != "--times") {
        return 1;
    }
    int times = 0;
    const auto& text = arguments[1];
    const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), times);
    const bool good = error == std::errc() && stop == text.data() + text.size() && times >= 1 &&
                      times <= kMostTimes;
    arguments.erase(arguments.begin(), arguments.begin() + 2);
    return good ? times : 0;
}

} // namespace

int run(std::vector<std::string> arguments, std::ostream& output, std::ostream& errors)
{
    if (arguments == std::vector<std::string>{"--help"}) {
        output << kUsage;
        return 0;
    }
    if (arguments == std::vector<std::string>{"--version"}) {
        output << "verbdb " << LUMORA_VERSION << "\n";
        return 0;
    }
    const int times = takeTimes(arguments);
    const auto first = arguments.empty() ? std::string() : arguments[0];
    if (times == 0 || arguments.size() != 2 || (first.starts_with("-") && first != "--report")) {
        errors << kUsage;
        return 2;
    }

    try {
        if (first == "--report") {
            printReport(readContent(arguments[1]), output);
        } else {
            writeDatabase(multipliedContent(readContent(first), times), arguments[1]);
        }
    } catch (const std::exception& error) {
        errors << error.what() << "\n";
        return 1;
    }
    return 0;
}

} // namespace lumora::verbdb
