// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace lumora::platform {

/// A scalar of a property list: a number (booleans are numbers there) or a
/// text. Every other kind reads as monostate.
using PropertyListValue = std::variant<std::monostate, double, std::string>;
using PropertyListDictionary = std::map<std::string, PropertyListValue, std::less<>>;

/// The values that these keys have in a property list, XML or binary, whose
/// root is a dictionary; none for anything else.
///
/// The library copies a container of a binary list for every place that refers
/// to it: 203 bytes, in which each of 30 arrays has the next one twice as a
/// member, take gigabytes. It also compares each container with all those
/// around it: 60,000 arrays in one another (420 kB) take over 20 seconds. So
/// both are refused before the library sees them. XML has no such references
/// and is read in a fraction of a second, however deep.
std::optional<PropertyListDictionary>
readPropertyListDictionary(std::string_view bytes, std::span<const std::string_view> keys);

} // namespace lumora::platform
