// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/base/error.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace lumora::platform {
class Database;
}

namespace lumora::data {

/// What the database tells of a verb besides its forms and translations.
struct VerbFacts {
    /// The group of the school grammars, 1 to 3.
    int group = 0;
    /// The conjugation model, named after a verb that follows it.
    std::string model;
    /// The verb that gives the model its name; none when it is this one.
    struct Like {
        std::int64_t id = -1;
        std::string french;
    };
    std::optional<Like> like;
    /// "avoir", "être" or both, the usual one first.
    std::vector<std::string> auxiliaries;
    /// "aspirated", "impersonal", "plural" (of an impersonal verb that has ils as
    /// well), "pronominal", "en" (of s'en aller), "defective".
    std::vector<std::string> traits;
    /// "invariable"; "indirect" when it does not agree with the subject because the
    /// reflexive pronoun is an indirect object.
    std::vector<std::string> participle;
    /// How common the verb is: 1 for the 100 commonest, 2 for the next 400, 3
    /// for the next 1,500, 4 for others in use, 5 for rare, old and technical
    /// ones.
    int use = 0;
};

/// None when the database does not tell of the verb; an error when it cannot be
/// asked, as of a file without the table.
platform::Result<std::optional<VerbFacts>> readVerbFacts(platform::Database& database,
                                                         std::int64_t verbId);

} // namespace lumora::data
