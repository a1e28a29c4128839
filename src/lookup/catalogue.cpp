// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/catalogue.h"

#include "data/form_parts.h"
#include "lookup/spelling.h"
#include "platform/storage/database.h"

#include <algorithm>

namespace lumora::lookup {

namespace {

constexpr std::string_view kVerbs = "SELECT _id, french, use_class FROM verb "
                                    "LEFT JOIN verb_facts ON verbid = _id ORDER BY _id";

/// Compound forms are found by their participles; "se lavant" is none.
constexpr std::string_view kForms =
    "SELECT verbid, verb FROM conjugation WHERE instr(verb, ' ') = 0 OR instr(verb, ', ') > 0 "
    "OR substr(verb, 1, 3) = 'se ' OR substr(verb, 1, 2) = 's'''";

constexpr std::size_t kMostVerbsOfWord = 12;
constexpr std::size_t kRowsKept = 48;
constexpr int kLeastUse = 5;

VerbName nameOf(std::int64_t id, std::string headword, int use)
{
    const auto bracket = headword.find(" (s");
    VerbName name;
    name.id = id;
    name.folded = foldedWord(tidied(headword.substr(0, bracket)));
    name.use = use == 0 ? kLeastUse : use;
    name.pronominal = bracket != std::string::npos;
    name.en = name.pronominal && headword.find("en)") != std::string::npos;
    name.headword = std::move(headword);
    return name;
}

platform::Error errorOf(const platform::Database& database)
{
    return {database.lastErrorMessage(), database.lastErrorCode()};
}

} // namespace

platform::Result<Catalogue> Catalogue::read(platform::Database& database)
{
    Catalogue catalogue;
    auto verbs = database.executeQuery(kVerbs, {});
    if (!verbs) {
        return tl::unexpected(verbs.error());
    }
    WordIndex::Builder words;
    while (verbs->next()) {
        const auto number = static_cast<std::uint32_t>(catalogue.verbs_.size());
        catalogue.verbs_.push_back(nameOf(verbs->longForColumn(0), verbs->stringForColumn(1),
                                          static_cast<int>(verbs->longForColumn(2))));
        const auto& verb = catalogue.verbs_.back();
        words.add(verb.folded, number);
        if (verb.headword == "avoir" || verb.headword == "être") {
            catalogue.auxiliaries_.push_back(number);
        }
    }
    auto forms =
        verbs->failed() ? tl::unexpected(errorOf(database)) : database.executeQuery(kForms, {});
    if (!forms) {
        return tl::unexpected(forms.error());
    }
    std::int64_t id = -1;
    std::uint32_t number = 0;
    while (forms->next()) {
        if (id != forms->longForColumn(0)) {
            id = forms->longForColumn(0);
            number = catalogue.numberOf(id);
        }
        if (number == catalogue.verbs_.size()) {
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
        return tl::unexpected(errorOf(database));
    }
    catalogue.words_ = std::move(words).build();
    return catalogue;
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
