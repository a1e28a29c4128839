// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/records/crash_handler.h"

namespace lumora::platform {

bool installCrashHandler(const std::filesystem::path& /*folder*/,
                         const std::filesystem::path& /*log*/)
{
    return false;
}

void setCrashReportValues(std::string_view /*text*/) {}

} // namespace lumora::platform
