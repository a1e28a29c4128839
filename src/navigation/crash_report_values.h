// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/services.h"

namespace lumora::navigation {

/// Tells the crash reporter how the lists and the search are set.
void sendCrashReportValues(const platform::Services& services);

} // namespace lumora::navigation
