// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <string_view>

namespace lumora::platform {

/// Lets a fatal signal write "crash-<time>.txt" into `folder` before the
/// program ends by it: the signal, the stack, the values, the end of `log`.
/// Once a process; everything that the handler needs is made ready here. False
/// when the paths are too long for that.
bool installCrashHandler(const std::filesystem::path& folder, const std::filesystem::path& log);

/// The text that a report shows as its values, cut to what fits. One thread.
void setCrashReportValues(std::string_view text);

} // namespace lumora::platform
