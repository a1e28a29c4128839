// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "terminal/reported_errors.h"
#include "text/text.h"

namespace lumora::terminal {

void ReportedErrors::logWithFormat(std::string_view format,
                                   const std::vector<platform::LogArgument>& arguments)
{
    text_ << text::formatted(format, arguments) << '\n';
}

std::optional<std::string> ReportedErrors::line() const
{
    std::istringstream lines{text_.str()};
    std::optional<std::string> joined;
    for (std::string line; std::getline(lines, line);) {
        joined = joined ? *joined + "; " + line : line;
    }
    return joined;
}

} // namespace lumora::terminal
