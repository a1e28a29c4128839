// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/catalogue.h"

#include "data/form_parts.h"
#include "lookup/sound_key.h"
#include "lookup/spelling.h"
#include "platform/storage/database.h"

#include <algorithm>
#include <functional>

namespace lumora::lookup {

namespace {

constexpr std::string_view kVerbs =
    "SELECT _id, french, use_class, "
    "instr(english, '(vulgar)') > 0 OR instr(english, '(slang)') > 0 FROM verb "
    "LEFT JOIN verb_facts ON verbid = _id ORDER BY _id";

/// Compound forms are found by their participles; "se lavant" is none.
constexpr std::string_view kForms =
    "SELECT verbid, verb FROM conjugation WHERE instr(verb, ' ') = 0 OR instr(verb, ', ') > 0 "
    "OR substr(verb, 1, 3) = 'se ' OR substr(verb, 1, 2) = 's'''";

constexpr std::string_view kStored = "SELECT words FROM word_index WHERE _id = ?";

constexpr std::size_t kMostVerbsOfWord = 12;
constexpr std::size_t kRowsKept = 48;
constexpr int kLeastUse = 5;

VerbName nameOf(std::int64_t id, std::string headword, int use)
{
    const auto bracket = headword.find(" (s");
    VerbName name;
    name.id = id;
    name.infinitive = tidied(headword.substr(0, bracket));
    name.folded = foldedWord(name.infinitive);
    name.use = use == 0 ? kLeastUse : use;
    name.pronominal = bracket != std::string::npos;
    name.en = name.pronominal && headword.find("en)") != std::string::npos;
    name.headword = std::move(headword);
    return name;
}

/// "s'évanouir" and "évanouir (s')" are the same name.
VerbName typedName(std::string_view tidy)
{
    struct Particle {
        std::string_view text;
        bool en;
    };
    constexpr Particle kBefore[] = {{"s'en ", true}, {"se ", false}, {"s'", false}};
    constexpr Particle kAfter[] = {{" (s'en)", true}, {" (se)", false}, {" (s')", false}};

    VerbName name;
    for (const auto& [text, en] : kBefore) {
        if (tidy.size() > text.size() && tidy.substr(0, text.size()) == text) {
            tidy.remove_prefix(text.size());
            name.pronominal = true;
            name.en = en;
            break;
        }
    }
    for (const auto& [text, en] : kAfter) {
        if (tidy.size() > text.size() && tidy.substr(tidy.size() - text.size()) == text) {
            tidy.remove_suffix(text.size());
            name.pronominal = true;
            name.en = en;
            break;
        }
    }
    name.infinitive = tidy;
    name.folded = foldedWord(tidy);
    return name;
}

} // namespace

std::string packedSounds(const std::vector<std::uint16_t>& sounds)
{
    std::string bytes;
    bytes.reserve(2 * sounds.size());
    for (const auto sound : sounds) {
        bytes += static_cast<char>(sound & 0xFFU);
        bytes += static_cast<char>(sound >> 8U);
    }
    return bytes;
}

platform::Result<Catalogue> Catalogue::read(platform::Database& database)
{
    Catalogue catalogue;
    auto done = catalogue.readVerbs(database);
    if (done && !catalogue.takeStoredWords(database)) {
        done = catalogue.readWords(database);
    }
    if (!done) {
        return tl::unexpected(done.error());
    }
    return catalogue;
}

platform::Result<void> Catalogue::readVerbs(platform::Database& database)
{
    auto rows = database.executeQuery(kVerbs, {});
    if (!rows) {
        return tl::unexpected(rows.error());
    }
    while (rows->next()) {
        verbs_.push_back(nameOf(rows->longForColumn(0), rows->stringForColumn(1),
                                static_cast<int>(rows->longForColumn(2))));
        auto& verb = verbs_.back();
        verb.vulgar = rows->longForColumn(3) != 0;
        if (verb.headword == "avoir" || verb.headword == "être") {
            auxiliaries_.push_back(static_cast<std::uint32_t>(verbs_.size() - 1));
        }
    }
    return rows->failed() ? tl::unexpected(database.lastError()) : platform::Result<void>{};
}

bool Catalogue::takeStoredWords(platform::Database& database)
{
    auto rows = database.executeQuery(kStored, {kStoredWords});
    if (!rows || !rows->next()) {
        return false;
    }
    auto stored =
        WordIndex::unpacked(rows->stringForColumn(0), static_cast<std::uint32_t>(verbs_.size()));
    if (!stored) {
        return false;
    }
    words_ = *std::move(stored);
    return true;
}

bool Catalogue::takeStoredSounds(platform::Database& database)
{
    auto rows = database.executeQuery(kStored, {kStoredSounds});
    if (!rows || !rows->next()) {
        return false;
    }
    const auto packed = rows->stringForColumn(0);
    if (packed.size() != 2 * words_.size()) {
        return false;
    }
    sounds_.reserve(words_.size());
    for (std::size_t at = 0; at < packed.size(); at += 2) {
        const auto low = static_cast<unsigned char>(packed[at]);
        const auto high = static_cast<unsigned char>(packed[at + 1]);
        sounds_.push_back(static_cast<std::uint16_t>(low | (high << 8U)));
    }
    return true;
}

const std::vector<std::uint16_t>& Catalogue::sounds(platform::Database& database)
{
    if (sounds_.empty() && !takeStoredSounds(database)) {
        sounds_.resize(words_.size());
        words_.forEach(
            [&](std::size_t number, std::string_view word) { sounds_[number] = looseSound(word); });
    }
    return sounds_;
}

platform::Result<void> Catalogue::readWords(platform::Database& database)
{
    WordIndex::Builder words;
    for (std::uint32_t verb = 0; verb < verbs_.size(); ++verb) {
        words.add(verbs_[verb].folded, verb);
    }
    auto forms = database.executeQuery(kForms, {});
    if (!forms) {
        return tl::unexpected(forms.error());
    }
    std::int64_t id = -1;
    std::uint32_t number = 0;
    while (forms->next()) {
        if (id != forms->longForColumn(0)) {
            id = forms->longForColumn(0);
            number = numberOf(id);
        }
        if (number == verbs_.size()) {
            continue;
        }
        for (const auto& form : data::spellingsOf(forms->stringForColumn(1))) {
            const auto word = withoutPronouns(form);
            if (word.find(' ') == std::string::npos) {
                words.add(foldedWord(word), number);
            }
        }
    }
    if (forms->failed()) {
        return tl::unexpected(database.lastError());
    }
    words_ = std::move(words).build();
    return {};
}

std::uint32_t Catalogue::numberOf(std::int64_t id) const
{
    const auto found = std::lower_bound(
        verbs_.begin(), verbs_.end(), id,
        [](const VerbName& verb, std::int64_t wanted) { return verb.id < wanted; });
    const bool known = found != verbs_.end() && found->id == id;
    return static_cast<std::uint32_t>((known ? found : verbs_.end()) - verbs_.begin());
}

std::vector<std::uint32_t> Catalogue::verbsOf(std::string_view folded) const
{
    const auto found = words_.find(folded);
    std::vector<std::uint32_t> verbs(found.begin(), found.end());
    std::stable_sort(verbs.begin(), verbs.end(), [&](std::uint32_t left, std::uint32_t right) {
        return verbs_[left].use < verbs_[right].use;
    });
    verbs.resize(std::min(verbs.size(), kMostVerbsOfWord));
    return verbs;
}

std::vector<std::int64_t> Catalogue::verbsNamed(std::string_view tidy) const
{
    const auto typed = typedName(tidy);
    const auto samePronoun = [&](const VerbName& verb) {
        return verb.pronominal == typed.pronominal && verb.en == typed.en;
    };
    const std::function<bool(const VerbName&)> likenesses[] = {
        [&](const VerbName& verb) {
            return verb.infinitive == typed.infinitive && samePronoun(verb);
        },
        [&](const VerbName& verb) {
            return verb.infinitive == typed.infinitive && !typed.pronominal;
        },
        [&](const VerbName& verb) { return verb.folded == typed.folded && samePronoun(verb); },
        [&](const VerbName& verb) { return verb.folded == typed.folded && !typed.pronominal; },
    };
    std::vector<std::int64_t> found;
    for (const auto& alike : likenesses) {
        for (const auto& verb : verbs_) {
            if (alike(verb)) {
                found.push_back(verb.id);
            }
        }
        if (!found.empty()) {
            break;
        }
    }
    return found;
}

bool Catalogue::isAuxiliary(std::string_view folded) const
{
    const auto verbs = words_.find(folded);
    return std::any_of(verbs.begin(), verbs.end(), [&](std::uint32_t verb) {
        return std::find(auxiliaries_.begin(), auxiliaries_.end(), verb) != auxiliaries_.end();
    });
}

platform::Result<Catalogue::Rows> Catalogue::rows(platform::Database& database,
                                                  std::uint32_t number)
{
    const auto kept = std::find_if(lastRows_.begin(), lastRows_.end(),
                                   [&](const auto& entry) { return entry.first == number; });
    if (kept != lastRows_.end()) {
        return kept->second;
    }
    const auto& verb = verbs_[number];
    auto read = VerbRows::read(database, verb.id, verb.pronominal, verb.en);
    if (!read) {
        return tl::unexpected(read.error());
    }
    lastRows_.emplace_front(number, std::make_shared<const VerbRows>(*std::move(read)));
    if (lastRows_.size() > kRowsKept) {
        lastRows_.pop_back();
    }
    return lastRows_.front().second;
}

} // namespace lumora::lookup
