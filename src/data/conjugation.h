// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace lumora::data {

/// One conjugated row of a verb.
struct Conjugation {
    /// May be empty: participles, imperatives and infinitives have none.
    std::string pronoun;
    std::string verb;
    /// A tense identifier, as in the database.
    std::string type;
    std::int64_t order = 0;
};

using ConjugationList = std::vector<std::shared_ptr<const Conjugation>>;

} // namespace lumora::data
