// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "detail/form_sheet.h"

#include "data/form_parts.h"
#include "data/tense_table.h"
#include "detail/form_style.h"
#include "detail/row_sounds.h"
#include "platform/machine/bundle.h"
#include "platform/storage/settings_store.h"
#include "settings/setting_keys.h"
#include "sound/grammar.h"
#include "text/pronoun.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>

namespace lumora::detail {

namespace {

TenseName nameOf(const data::TenseBlock& block, const Wording& wording)
{
    const bool french = wording.settings.boolForKey(settings::kShowTranslated);
    const std::string key{block.titleKey};
    TenseName name{
        data::tenseTitle(key, wording.bundle, wording.settings),
        platform::localizedString(wording.bundle, french ? key : key + "_french"),
    };
    if (name.otherTitle == name.title) {
        name.otherTitle.clear();
    }
    return name;
}

/// A row without a pronoun is of the person, the time or the gender that its
/// hint names.
std::string personInWords(const data::TenseBlock& block, const data::ConjugationList& forms,
                          std::size_t row, const Wording& wording)
{
    constexpr std::array<std::string_view, 6> kKeys{"person.1.singular", "person.2.singular",
                                                    "person.3.singular", "person.1.plural",
                                                    "person.2.plural",   "person.3.plural"};
    const auto hint = hintsOf(block.tense.identifier, forms, [&](std::string_view key) {
        return data::tenseTitle(key, wording.bundle, wording.settings);
    })[row];
    const auto& pronoun = forms[row]->pronoun;
    const auto person = sound::personOf(pronoun.empty() ? hint.hint : pronoun);
    if (person == sound::Person::Nobody) {
        return hint.accessibilityHint;
    }
    auto words =
        platform::localizedString(wording.bundle, kKeys.at(static_cast<std::size_t>(person)));
    // "tu, past"
    if (hint.accessibilityHint.size() > hint.hint.size()) {
        words += hint.accessibilityHint.substr(hint.hint.size());
    }
    return words;
}

bool haveSpellingInCommon(const data::Conjugation& one, const data::Conjugation& other)
{
    const auto spellings = data::spellingsOf(one.verb);
    const auto others = data::spellingsOf(other.verb);
    return std::any_of(spellings.begin(), spellings.end(), [&](const std::string& spelling) {
        return std::find(others.begin(), others.end(), spelling) != others.end();
    });
}

void forEachForm(const data::Verb& verb,
                 const std::function<void(const RowPlace&, const data::TenseBlock&,
                                          const data::Conjugation&)>& visit)
{
    for (int segment = 0; segment < data::kMoodCount; ++segment) {
        int tense = 0;
        for (const auto& block : data::blocksOfSegment(segment)) {
            int row = 0;
            for (const auto& form : verb.*block.tense.forms) {
                visit({segment, tense, row++}, block, *form);
            }
            ++tense;
        }
    }
}

} // namespace

std::shared_ptr<const data::Conjugation> formAt(const data::Verb& verb, const RowPlace& place)
{
    const auto* block = data::blockAt(place.segment, place.tense);
    if (block == nullptr) {
        return nullptr;
    }
    const auto& forms = verb.*block->tense.forms;
    const bool isThere = place.row >= 0 && static_cast<std::size_t>(place.row) < forms.size();
    return isThere ? forms[static_cast<std::size_t>(place.row)] : nullptr;
}

std::optional<FormSheet> formSheet(const data::Verb& verb, const RowPlace& place,
                                   const RowSounds& sounds, const Wording& wording)
{
    const auto form = formAt(verb, place);
    if (form == nullptr) {
        return std::nullopt;
    }
    const auto rowOf = [](const data::Conjugation& row) {
        return text::beforeForm(row.pronoun) + row.verb;
    };
    const auto& tense = *data::blockAt(place.segment, place.tense);
    FormSheet sheet{
        rowOf(*form),
        form->verb,
        sounds.ipa(*form),
        nameOf(tense, wording),
        personInWords(tense, verb.*tense.tense.forms, static_cast<std::size_t>(place.row), wording),
        {}};
    forEachForm(verb, [&](const RowPlace& there, const data::TenseBlock& block,
                          const data::Conjugation& other) {
        if (there != place && haveSpellingInCommon(*form, other)) {
            auto title = data::tenseTitle(block.titleKey, wording.bundle, wording.settings);
            // What a pronoun would tell.
            if (other.pronoun.empty()) {
                title += ", " + personInWords(block, verb.*block.tense.forms,
                                              static_cast<std::size_t>(there.row), wording);
            }
            sheet.others.push_back({there, rowOf(other), std::move(title)});
        }
    });
    return sheet;
}

std::optional<TenseNote> tenseNote(int segment, int tense, const Wording& wording)
{
    const auto* block = data::blockAt(segment, tense);
    if (block == nullptr) {
        return std::nullopt;
    }
    const std::string key{block->titleKey};
    const auto text = [&](const char* part) {
        return platform::localizedString(wording.bundle, key + part);
    };
    // The translation stands on a line of its own below the French sentence.
    auto example = text(".example");
    const auto end = std::min(example.find('\n'), example.size());
    auto translation = example.substr(std::min(end + 1, example.size()));
    example.resize(end);
    return TenseNote{nameOf(*block, wording), text(".use"), std::move(example),
                     std::move(translation)};
}

} // namespace lumora::detail
