// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <iosfwd>

namespace lumora::platform {
class Database;
}

namespace lumora::data {

struct Verb;

/// Brings the favourite table in line with the verb's flag. A failure is a
/// line on the console; the flag stays as the user set it.
void updateFavourite(platform::Database& database, const Verb& verb, std::ostream& console);

} // namespace lumora::data
