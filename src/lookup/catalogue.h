// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "lookup/verb_rows.h"
#include "lookup/word_index.h"
#include "platform/base/error.h"

#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lumora::lookup {

/// A verb, as a text may name it.
struct VerbName {
    std::int64_t id = -1;
    /// "évanouir (s')".
    std::string headword;
    /// Without its pronoun: "évanouir"; and the same folded.
    std::string infinitive;
    std::string folded;
    /// From 1, among the commonest, to 5.
    int use = 0;
    /// A vulgar word: it is not offered as a guess for a short text.
    bool vulgar = false;
    bool pronominal = false;
    /// As in s'en aller.
    bool en = false;
};

/// The ids of the two rows of the table "word_index": the words, and a number for the
/// sound of each, two bytes, the lower one first. To make them of all forms takes long.
inline constexpr std::int64_t kStoredWords = 1;
inline constexpr std::int64_t kStoredSounds = 2;
std::string packedSounds(const std::vector<std::uint16_t>& sounds);

/// What is known of all verbs, read once, and the rows of those that were asked
/// for last.
class Catalogue {
public:
    /// Reads the index of words from the file if it is there, else makes it of all
    /// forms. An error when the database cannot be asked.
    static platform::Result<Catalogue> read(platform::Database& database);

    /// All verbs by id.
    const std::vector<VerbName>& verbs() const { return verbs_; }
    /// All forms that are one word, and the names of the verbs.
    const WordIndex& words() const { return words_; }
    const VerbName& verb(std::uint32_t number) const { return verbs_[number]; }
    /// The number of a verb in the index of words; verbs().size() for none.
    std::uint32_t numberOf(std::int64_t id) const;

    /// The verbs of a folded word, the commonest first, a few at most.
    std::vector<std::uint32_t> verbsOf(std::string_view folded) const;
    /// The ids of the verbs that a tidied text names, as Lookup::verbsNamed has it.
    std::vector<std::int64_t> verbsNamed(std::string_view tidy) const;
    /// looseSound of each word of the index, read or made when first asked for.
    const std::vector<std::uint16_t>& sounds(platform::Database& database);
    /// A form of avoir or être.
    bool isAuxiliary(std::string_view folded) const;

    using Rows = std::shared_ptr<const VerbRows>;
    platform::Result<Rows> rows(platform::Database& database, std::uint32_t number);

private:
    platform::Result<void> readVerbs(platform::Database& database);
    bool takeStoredWords(platform::Database& database);
    bool takeStoredSounds(platform::Database& database);
    platform::Result<void> readWords(platform::Database& database);

    std::vector<VerbName> verbs_;
    WordIndex words_;
    std::vector<std::uint16_t> sounds_;
    std::vector<std::uint32_t> auxiliaries_;
    std::deque<std::pair<std::uint32_t, Rows>> lastRows_;
};

} // namespace lumora::lookup
