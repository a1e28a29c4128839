// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "conjugator/conjugator.h"
#include "conjugator/verb_entry.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace lumora::verbdb {

/// The order of the columns of content/verbs.tsv.
inline constexpr std::array<std::string_view, 6> kLanguages{"english", "german",  "dutch",
                                                            "spanish", "italian", "portuguese"};

struct FlagName {
    std::string_view name;
    bool conjugator::VerbEntry::*flag;
};

/// The words of the column "traits".
inline constexpr std::array<FlagName, 6> kTraits{{
    {"aspirated", &conjugator::VerbEntry::aspirated},
    {"impersonal", &conjugator::VerbEntry::impersonal},
    {"plural", &conjugator::VerbEntry::plural},
    {"pronominal", &conjugator::VerbEntry::pronominal},
    {"en", &conjugator::VerbEntry::en},
    {"defective", &conjugator::VerbEntry::defective},
}};

/// The words of the column "participle".
inline constexpr std::array<FlagName, 2> kParticipleKinds{{
    {"invariable", &conjugator::VerbEntry::invariableParticiple},
    {"indirect", &conjugator::VerbEntry::indirectPronoun},
}};

/// The values of the column "auxiliary", by conjugator::Auxiliary.
inline constexpr std::array<std::string_view, 4> kAuxiliaries{"avoir", "être", "avoir+être",
                                                              "être+avoir"};

struct Verb {
    std::int64_t id = 0;
    conjugator::VerbEntry entry;
    /// From 1, the commonest verbs, to 5, the rarest.
    int use = 0;
    /// By kLanguages.
    std::array<std::string, kLanguages.size()> translations;
};

/// The tables of a content folder, read and found right.
struct Content {
    conjugator::Conjugator conjugator;
    /// In the order of their ids.
    std::vector<Verb> verbs;
};

/// Throws conjugator::TableError at the first bad line.
Content readContent(const std::filesystem::path& folder);

} // namespace lumora::verbdb
