// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace lumora::platform {

using LogArgument = std::variant<std::string, int>;
using CustomValue = std::variant<bool, std::string>;

/// A log that stays on the machine and goes into a crash report.
class CrashReporter {
public:
    virtual ~CrashReporter() = default;
    /// Each "%@" takes a text, each "%d" a number, in order; a placeholder
    /// without an argument stays as it is.
    virtual void logWithFormat(std::string_view format,
                               const std::vector<LogArgument>& arguments) = 0;
    virtual void setCustomValue(const CustomValue& value, std::string_view key) = 0;
};

/// The line that `logWithFormat` writes.
std::string formattedLogLine(std::string_view format, const std::vector<LogArgument>& arguments);

} // namespace lumora::platform
