// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/machine/crash_reporter.h"

#include <optional>
#include <sstream>
#include <string>

namespace lumora::terminal {

/// Keeps what the logic reports, so that it can be told in one line and with
/// an exit status.
class ReportedErrors final : public platform::CrashReporter {
public:
    void logWithFormat(std::string_view format,
                       const std::vector<platform::LogArgument>& arguments) override;
    void setCustomValue(const platform::CustomValue& /*value*/, std::string_view /*key*/) override
    {}

    std::ostream& console() { return text_; }

    /// All that was reported, on one line; none when all is well.
    std::optional<std::string> line() const;

private:
    std::ostringstream text_;
};

} // namespace lumora::terminal
