// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace lumora::platform {
class CrashReporter;
class Device;
class SettingsStore;
} // namespace lumora::platform

namespace lumora::navigation {

/// Tells the crash reporter how the lists and the search are set.
void sendCrashReportValues(const platform::SettingsStore& settings, const platform::Device& device,
                           platform::CrashReporter& report);

} // namespace lumora::navigation
