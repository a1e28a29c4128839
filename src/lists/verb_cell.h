// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/verb.h"
#include "platform/screens/table_cell.h"

#include <vector>

namespace lumora::platform {
class CrashReporter;
class Database;
class Device;
class SettingsStore;
} // namespace lumora::platform

namespace lumora::lists {

/// The "VerbCell" of every list: the French verb over its translation, a star
/// for a favourite. Its note tells a homograph from the others where the
/// translation is French itself.
platform::TableCell verbCell(const data::Verb& verb, const platform::SettingsStore& settings,
                             const platform::Device& device);

/// Reads what distinguishes homographs where the translations cannot, because
/// they are French; logs a failure.
void distinguishHomographs(const std::vector<data::VerbPtr>& verbs, platform::Database& database,
                           const platform::SettingsStore& settings, const platform::Device& device,
                           platform::CrashReporter& crashReporter);

} // namespace lumora::lists
