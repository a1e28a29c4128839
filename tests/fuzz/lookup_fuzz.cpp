// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "fuzz/fuzz.h"
#include "lookup/lookup.h"
#include "support/world.h"

#include <algorithm>
#include <string>

using namespace lumora;

/// Any bytes as a typed text: a handful of readings at most, of verbs that are
/// there, and the same for the same text.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static support::World world;
    const fuzz::TimeLimit limit;
    const auto text = fuzz::textOf(data, size);
    world.queue->inDatabase([&](platform::Database& database) {
        static lookup::Lookup lookup;
        const auto readings = lookup.read(database, text, "en");
        const auto again = lookup.read(database, text, "en");
        fuzz::require(lookup.verbsNamed(database, text).has_value(), "a name is no error");
        fuzz::require(readings && again, "a text is no error");
        fuzz::require(readings->size() <= 5 && readings->size() == again->size(),
                      "a handful, and the same each time");
        for (const auto& reading : *readings) {
            fuzz::require(reading.verb > 0 && !reading.headword.empty() && !reading.form.empty(),
                          "a reading names a verb and a form");
        }
    });
    return 0;
}
