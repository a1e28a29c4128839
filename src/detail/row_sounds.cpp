// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "detail/row_sounds.h"

#include "data/conjugation.h"
#include "data/verb.h"
#include "data/verb_facts.h"
#include "platform/storage/database_queue.h"
#include "sound/pronunciation.h"
#include "text/text.h"

#include <algorithm>
#include <utility>

namespace lumora::detail {

namespace {

bool isAspirated(platform::Database& database, std::int64_t verbId)
{
    const auto facts = data::readVerbFacts(database, verbId);
    return facts && *facts &&
           std::find((*facts)->traits.begin(), (*facts)->traits.end(), "aspirated") !=
               (*facts)->traits.end();
}

} // namespace

RowSounds::RowSounds(const data::Verb& verb, platform::DatabaseQueue* queue)
    // Pronominal verbs are filed as "évanouir (s')".
    : infinitive_{verb.french.substr(0, verb.french.find(" ("))}
{
    if (queue != nullptr) {
        queue->inDatabase(
            [&](platform::Database& database) { aspirated_ = isAspirated(database, verb.id); });
    }
}

std::string RowSounds::ipa(const data::Conjugation& row) const
{
    return sound::ipa({infinitive_, row.pronoun, row.verb, row.type, aspirated_});
}

std::vector<platform::PronouncedWord> RowSounds::words(std::string_view spoken,
                                                       const data::Conjugation& row) const
{
    std::vector<platform::PronouncedWord> words;
    for (auto& word :
         sound::spokenWords(spoken, {infinitive_, row.pronoun, row.verb, row.type, aspirated_})) {
        words.push_back({text::characterCount(spoken.substr(0, word.begin)),
                         text::characterCount(spoken.substr(word.begin, word.length)),
                         std::move(word.ipa)});
    }
    return words;
}

} // namespace lumora::detail
