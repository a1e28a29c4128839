// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/verb.h"
#include "data/verb_facts.h"
#include "platform/base/error.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace lumora::platform {
class Database;
}

namespace lumora::data {

/// The verbs that a verb leads to.
struct VerbRelations {
    /// Other entries of the same infinitive, with se or without: aller for
    /// aller (s'en), faire (se) and faire (s'en) for faire.
    std::vector<VerbPtr> partners;
    /// Entries of the same name.
    std::vector<VerbPtr> homographs;
    /// The commonest of those that are conjugated alike, with the same auxiliary
    /// and se or without as this one, each name once; without the verb that gives
    /// them their model.
    std::vector<VerbPtr> alike;
};

/// At most so many verbs are named as conjugated alike.
inline constexpr std::size_t kAlikeCount = 5;

/// An error when the database cannot be asked. Without facts no verb is alike.
platform::Result<VerbRelations> readVerbRelations(platform::Database& database, const Verb& verb,
                                                  const std::optional<VerbFacts>& facts);

/// A verb as the lists read it; null when there is none of that id.
platform::Result<VerbPtr> readVerb(platform::Database& database, std::int64_t id);

/// The infinitive of an entry without its pronoun: "évanouir" of "évanouir (s')".
std::string_view bareInfinitive(std::string_view french);

/// Whether an entry is filed with its pronoun, as "évanouir (s')" is.
bool isFiledWithPronoun(std::string_view french);

} // namespace lumora::data
