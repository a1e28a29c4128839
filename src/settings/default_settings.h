// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace lumora::platform {
class SettingsStore;
}

namespace lumora::settings {

/// Writes the values of a first start, once: as long as IncludeEnglish has
/// never been written.
void seedDefaultSettings(platform::SettingsStore& settings);

} // namespace lumora::settings
