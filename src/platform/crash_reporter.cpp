// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/crash_reporter.h"

#include <fmt/format.h>

#include <cstddef>

namespace lumora::platform {

std::string formattedLogLine(std::string_view format, const std::vector<LogArgument>& arguments)
{
    std::string line;
    auto argument = arguments.begin();
    for (std::size_t place = 0; place < format.size(); ++place) {
        const std::string_view placeholder = format.substr(place, 2);
        if (argument != arguments.end() && (placeholder == "%@" || placeholder == "%d")) {
            std::visit([&line](const auto& value) { line += fmt::format("{}", value); },
                       *argument++);
            ++place;
        } else {
            line += format[place];
        }
    }
    return line;
}

} // namespace lumora::platform
