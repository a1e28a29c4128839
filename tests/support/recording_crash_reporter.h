// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/machine/crash_reporter.h"
#include "text/text.h"

#include <map>
#include <string>
#include <vector>

namespace lumora::support {

class RecordingCrashReporter final : public platform::CrashReporter {
public:
    void logWithFormat(std::string_view format,
                       const std::vector<platform::LogArgument>& arguments) override
    {
        lines.push_back(text::formatted(format, arguments));
    }
    void setCustomValue(const platform::CustomValue& value, std::string_view key) override
    {
        customValues.insert_or_assign(std::string(key), value);
    }

    std::vector<std::string> lines;
    std::map<std::string, platform::CustomValue, std::less<>> customValues;
};

} // namespace lumora::support
