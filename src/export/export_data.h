// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>

namespace lumora::data {
struct Verb;
}
namespace lumora::platform {
class Bundle;
class Device;
class SettingsStore;
} // namespace lumora::platform

namespace lumora::exporting {

/// Everything that the templates may show of a verb, as compact JSON that is
/// an object literal in a script too. None when a text is no UTF-8.
std::optional<std::string> exportData(const data::Verb& verb, const platform::Bundle& bundle,
                                      const platform::SettingsStore& settings,
                                      const platform::Device& device);

} // namespace lumora::exporting
