// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string_view>

namespace lumora::platform {
class Device;
class SettingsStore;
} // namespace lumora::platform

namespace lumora::lists {

/// Whether lists follow the French verb: true unless SortByLang is an explicit
/// false.
bool sortsByFrench(const platform::SettingsStore& settings);

/// The column that the verb list and the favourites are ordered by.
std::string_view listSortColumn(const platform::SettingsStore& settings,
                                const platform::Device& device);

} // namespace lumora::lists
