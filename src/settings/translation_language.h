// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace lumora::platform {
class Device;
class SettingsStore;
} // namespace lumora::platform

namespace lumora::settings {

/// The stored choice when it is a non-empty text, else the device's first
/// preferred language. A device without any is a mistake and stops the program.
std::string effectiveTranslationLanguage(const platform::SettingsStore& settings,
                                         const platform::Device& device);

} // namespace lumora::settings
