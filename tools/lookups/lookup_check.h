// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "lookup/lookup.h"
#include "platform/storage/database.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace lumora::lookups {

/// What came of a check; the first failures are told.
struct Outcome {
    std::size_t asked = 0;
    std::size_t wrong = 0;
    std::vector<std::string> failures;
};

/// Types each row that the pages of the verbs show as one says it, "que j'aille",
/// of every `stride`-th verb. Its verb is to be among the first three readings,
/// and one of them is to name the row.
Outcome checkRows(platform::Database& database, lookup::Lookup& lookup, std::size_t stride);

/// Types infinitives with one typo: a letter lost,
/// added, changed, swapped, doubled, or an accent lost. The verb is to be among
/// the first three readings. The same seed makes the same typos.
Outcome checkTypos(platform::Database& database, lookup::Lookup& lookup, std::size_t count,
                   std::uint32_t seed);

/// Texts that are no verb in any way have no reading.
Outcome checkOthers(platform::Database& database, lookup::Lookup& lookup);

} // namespace lumora::lookups
