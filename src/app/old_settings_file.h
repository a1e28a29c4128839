// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace lumora::platform {
class CrashReporter;
class SettingsStore;
} // namespace lumora::platform

namespace lumora::app {

/// Copies the four options of a "lumora.plist", as programs before the settings
/// store left it, into the settings and deletes the file. Values of another
/// kind are skipped; a file that cannot be deleted is copied again at the next
/// start.
///
/// `documents` is taken as URL text as it stands: none, or one that is no valid
/// URL (a blank in it), means there is nothing to carry over.
void carryOverOldSettings(const std::optional<std::string>& documents,
                          platform::SettingsStore& settings,
                          platform::CrashReporter& crashReporter);

} // namespace lumora::app
