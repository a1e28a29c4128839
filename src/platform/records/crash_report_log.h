// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/machine/crash_reporter.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace lumora::platform {

/// Crash reports as files below one folder: "log.txt" (one line an entry, cut
/// to its newer half when it passes its cap), the custom values, and, after a
/// crash, "crash-<time>.txt" with a stack trace, the values and the log's end.
///
/// A folder that cannot be written makes the log silent, never the program.
class CrashReportLog final : public CrashReporter {
public:
    /// `folder` is made when missing.
    explicit CrashReportLog(std::filesystem::path folder);
    ~CrashReportLog() override;

    void logWithFormat(std::string_view format, const std::vector<LogArgument>& arguments) override;
    void setCustomValue(const CustomValue& value, std::string_view key) override;

    /// From now on a fatal signal leaves a report before the program ends.
    /// One log a process may do this.
    void installCrashHandler();

    static constexpr std::size_t kMaximumLogBytes = std::size_t{256} * 1024;
    /// An entry is cut to this length.
    static constexpr std::size_t kMaximumEntryBytes = 4096;

private:
    std::string renderedValues() const;

    std::filesystem::path folder_;
    std::map<std::string, CustomValue, std::less<>> customValues_;
    bool handlesCrashes_ = false;
};

} // namespace lumora::platform
