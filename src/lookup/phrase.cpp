// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/phrase.h"

#include "lookup/spelling.h"

#include <algorithm>
#include <optional>

namespace lumora::lookup {

namespace {

/// Beyond this no pronouns are left to take away.
constexpr std::size_t kLongestLead = 8;

using Tokens = std::vector<std::string>;

/// The subject of "il lui en parle" is il, and nothing in it is reflexive; the
/// subject of "me lave" is je.
void addReflexive(Phrase& phrase, std::string_view token)
{
    const auto own = reflexivePersons(token);
    if (own == kAnyPerson) {
        return;
    }
    const bool se = token == "se" || token == "s'";
    if (phrase.persons == kAnyPerson) {
        phrase.reflexive = true;
        phrase.se = se;
        // "se" stands before infinitives and participles as well.
        phrase.persons = se ? kAnyPerson : own;
    } else if ((phrase.persons & own) != 0) {
        phrase.reflexive = true;
    }
}

/// Reads what stands before a verb; none when the tokens are something else.
std::optional<Phrase> leadOf(const Tokens& tokens, std::size_t end)
{
    Phrase phrase;
    std::size_t at = 0;
    const auto is = [&](auto&& test) { return at < end && test(std::string_view{tokens[at]}); };
    phrase.conjunction = is(isQue);
    const bool beforeIl = is([](auto token) { return token == "s'"; }) && at + 1 < end &&
                          tokens[1].substr(0, 2) == "il";
    if (phrase.conjunction || is(isSi) || beforeIl) {
        ++at;
    }
    if (is([](auto token) { return subjectPersons(token) != kAnyPerson; })) {
        phrase.persons = subjectPersons(tokens[at++]);
        // "il ou elle ou on", "il, elle": the persons are the same.
        while (at + 1 < end && tokens[at] == "ou" && subjectPersons(tokens[at + 1]) != 0) {
            at += 2;
        }
    }
    if (is(isNegation)) {
        ++at;
        // "ne pas manger"
        while (is(isAdverb)) {
            ++at;
        }
    }
    while (is(isObject)) {
        phrase.en = phrase.en || (tokens[at] == "en" && phrase.reflexive);
        addReflexive(phrase, tokens[at++]);
    }
    if (at != end) {
        return std::nullopt;
    }
    phrase.bare = end == 0;
    return phrase;
}

/// Reads what stands behind a verb; false when the tokens are something else.
bool takeTail(const Tokens& tokens, std::size_t at, Phrase& phrase)
{
    const bool hasSubject = phrase.persons != kAnyPerson;
    // "laver (se)", "aller (s'en)": the infinitive as lists have it.
    bool listed = false;
    for (; at < tokens.size(); ++at) {
        const auto& token = tokens[at];
        phrase.bare = false;
        const bool last = at + 1 == tokens.size();
        if (token == "t" && !last) {
            continue;
        }
        const auto subject = subjectPersons(token);
        if (!hasSubject && !phrase.inverted && !phrase.reflexive && subject != kAnyPerson &&
            token != "nous" && token != "vous") {
            phrase.inverted = true;
            phrase.persons = subject;
        } else if (isStressed(token) || isObject(token)) {
            if (hasSubject || phrase.inverted) {
                return false;
            }
            const bool own = token == "toi" || token == "t'" || token == "nous" ||
                             token == "vous" || token == "se" || token == "s'";
            phrase.reflexive = phrase.reflexive || own;
            phrase.en = phrase.en || (token == "en" && phrase.reflexive);
            listed = listed || token == "se" || token == "s'";
            phrase.imperative = !listed;
            phrase.adverbFollows = phrase.adverbFollows || token == "y" || token == "en";
        } else if (!isAdverb(token)) {
            return false;
        }
    }
    return true;
}

/// The phrases whose verb stands at a place.
void addPhrases(const Tokens& tokens, std::size_t verb, const IsAuxiliary& isAuxiliary,
                std::vector<Phrase>& phrases)
{
    const auto lead = leadOf(tokens, verb);
    if (!lead) {
        return;
    }
    if (isAuxiliary(foldedWord(tokens[verb]))) {
        auto compound = *lead;
        auto at = verb + 1;
        const bool inverted = at + 1 < tokens.size() && lead->persons == kAnyPerson &&
                              (subjectPersons(tokens[at]) != kAnyPerson || tokens[at] == "t");
        if (inverted) {
            at += tokens[at] == "t" ? 1 : 0;
            compound.persons = subjectPersons(tokens[at++]);
            compound.inverted = true;
        }
        while (at + 1 < tokens.size() && isAdverb(tokens[at])) {
            ++at;
        }
        if (at < tokens.size()) {
            compound.auxiliary = tokens[verb];
            compound.word = tokens[at];
            compound.bare = false;
            if (takeTail(tokens, at + 1, compound) && !compound.imperative) {
                phrases.push_back(compound);
            }
        }
    }
    auto simple = *lead;
    simple.word = tokens[verb];
    if (!takeTail(tokens, verb + 1, simple)) {
        return;
    }
    phrases.push_back(simple);
    // "lavons-nous" may ask as well as order.
    const auto& behind = tokens.back();
    if (lead->bare && verb + 2 == tokens.size() && (behind == "nous" || behind == "vous")) {
        simple = *lead;
        simple.word = tokens[verb];
        simple.bare = false;
        simple.inverted = true;
        simple.persons = subjectPersons(behind);
        phrases.push_back(simple);
    }
}

} // namespace

std::vector<Phrase> phrasesOf(const std::vector<std::string>& tokens,
                              const IsAuxiliary& isAuxiliary)
{
    std::vector<Phrase> phrases;
    for (auto verb = std::min(tokens.size(), kLongestLead + 1); verb-- > 0;) {
        addPhrases(tokens, verb, isAuxiliary, phrases);
    }
    return phrases;
}

} // namespace lumora::lookup
