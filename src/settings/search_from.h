// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace lumora::platform {
class SettingsStore;
}

namespace lumora::settings {

/// Whether the search matches at the start of a word. Anything but a text
/// counts as missing, and missing as "S".
bool searchesFromStart(const platform::SettingsStore& settings);

} // namespace lumora::settings
