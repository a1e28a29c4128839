// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "text/text.h"

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace lumora::platform {

using LogArgument = text::FormatArgument;
using CustomValue = std::variant<bool, std::string>;

/// A log that stays on the machine and goes into a crash report.
class CrashReporter {
public:
    virtual ~CrashReporter() = default;
    /// One line: `text::formatted(format, arguments)`.
    virtual void logWithFormat(std::string_view format,
                               const std::vector<LogArgument>& arguments) = 0;
    virtual void setCustomValue(const CustomValue& value, std::string_view key) = 0;
};

} // namespace lumora::platform
