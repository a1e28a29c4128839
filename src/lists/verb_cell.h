// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/table_cell.h"

namespace lumora::data {
struct Verb;
}
namespace lumora::platform {
struct Services;
}

namespace lumora::lists {

/// The "VerbCell" of every list: the French verb over its translation, a star
/// for a favourite.
platform::TableCell verbCell(const data::Verb& verb, const platform::Services& services);

} // namespace lumora::lists
