// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sound/pronunciation.h"

#include "sound/grammar.h"
#include "sound/letters.h"
#include "sound/word.h"
#include "text/brackets.h"
#include "text/pronoun.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace lumora::sound {

namespace {

constexpr std::string_view kLink = "‿";
constexpr std::string_view kVariants = ", ";

/// A word that stands around the verb.
struct Particle {
    std::string_view text;
    std::string_view ipa;
    /// The consonant of its liaison with the verb.
    std::string_view liaison;
};

constexpr std::array<Particle, 26> kParticles{{
    {"je", "ʒə", ""},     {"j'", "ʒ", ""},      {"tu", "ty", ""},    {"il", "il", ""},
    {"elle", "ɛl", ""},   {"on", "ɔ̃", "n"},     {"nous", "nu", "z"}, {"vous", "vu", "z"},
    {"ils", "il", "z"},   {"elles", "ɛl", "z"}, {"me", "mə", ""},    {"m'", "m", ""},
    {"te", "tə", ""},     {"t'", "t", ""},      {"se", "sə", ""},    {"s'", "s", ""},
    {"que", "kə", ""},    {"qu'", "k", ""},     {"ou", "u", ""},     {"-toi", "twa", ""},
    {"-nous", "nu", "z"}, {"-vous", "vu", "z"}, {"en", "ɑ̃", "n"},    {"y", "i", ""},
    {"-t'", "t", ""},     {"-en", "ɑ̃", ""},
}};

const Particle* particleNamed(std::string_view text)
{
    const auto* const found =
        std::find_if(kParticles.begin(), kParticles.end(),
                     [&](const Particle& particle) { return particle.text == text; });
    return found == kParticles.end() ? nullptr : found;
}

struct Token {
    std::size_t begin = 0;
    std::string_view text;
};

/// A hyphen parts a verb from the pronouns of its imperative alone: "allez",
/// "-vous", "-en", but "pique-nique".
std::size_t firstPart(std::string_view word)
{
    for (auto hyphen = word.find('-', 1); hyphen != std::string_view::npos;
         hyphen = word.find('-', hyphen + 1)) {
        const auto next = std::min(word.find('-', hyphen + 1), word.size());
        if (particleNamed(word.substr(hyphen, next - hyphen)) != nullptr) {
            return hyphen;
        }
    }
    return word.size();
}

std::vector<Token> tokensOf(std::string_view text, std::size_t begin, std::size_t end)
{
    std::vector<Token> tokens;
    const auto take = [&](std::size_t wordEnd) {
        while (wordEnd > begin) {
            const auto word = text.substr(begin, wordEnd - begin);
            const auto length = firstPart(word);
            tokens.push_back({begin, word.substr(0, length)});
            begin += length;
        }
        begin = wordEnd;
    };
    for (std::size_t i = begin; i < end; ++i) {
        if (text[i] == ' ') {
            take(i);
            begin = i + 1;
        } else if (text[i] == '\'') {
            take(i + 1);
        }
    }
    take(end);
    return tokens;
}

/// By the letters, as grammar has it: y is a vowel before a consonant alone.
bool beginsWithVowel(const Letters& word)
{
    const auto first = word.empty() ? U' ' : word[0];
    const auto second = word.size() > 1 ? word[1] : U' ';
    return first == U'h' || (first == U'y' ? !isVowelLetter(second) : isVowelLetter(first));
}

/// The consonant by which an auxiliary is linked in careful speech: est allé,
/// sommes allés, ont aimé, je suis allé, but not tu as aimé.
std::string_view auxiliaryLiaison(std::string_view word, Person person)
{
    const bool we = person == Person::Nous || person == Person::Vous || word == "suis" ||
                    word == "soyons" || word == "soyez" || word == "ayons" || word == "ayez";
    if (word.ends_with('t')) {
        return "t";
    }
    return we && (word.ends_with('s') || word.ends_with('z')) ? "z" : "";
}

/// Speaks the words of one text from left to right.
class Speaker {
public:
    /// The person holds where the text has no subject.
    Speaker(std::vector<Token> tokens, const Row& row, Tense tense, Person person)
        : tokens_(std::move(tokens)), row_(row), infinitive_(decoded(row.infinitive)), tense_(tense)
    {
        findVerb();
        person_ = person_ == Person::Nobody ? person : person_;
    }

    Person person() const { return person_; }

    void speak(std::vector<SpokenWord>& words) const
    {
        for (std::size_t i = 0; i < tokens_.size(); ++i) {
            const auto [sounds, liaison] = said(i);
            const bool linked = !liaison.empty() && isLinkedTo(i + 1);
            words.push_back({tokens_[i].begin, tokens_[i].text.size(), sounds, linked});
            if (linked) {
                words.back().ipa += liaison;
            }
        }
    }

private:
    struct Said {
        std::string ipa;
        std::string_view liaison;
    };

    /// The first word that is no particle, or the last one: tu of taire.
    void findVerb()
    {
        std::size_t last = 1;
        while (last < tokens_.size() && !tokens_[last].text.starts_with('-')) {
            ++last;
        }
        while (verb_ + 1 < last && particleNamed(tokens_[verb_].text) != nullptr) {
            if (const auto person = personOf(tokens_[verb_].text); person_ == Person::Nobody) {
                person_ = person;
            }
            ++verb_;
        }
        const auto after = verb_ + 1;
        compound_ = after < tokens_.size() && particleNamed(tokens_[after].text) == nullptr;
    }

    Said said(std::size_t index) const
    {
        const auto text = text::withoutBracketedEndings(tokens_[index].text).text;
        if (const auto* particle = particleNamed(text); index != verb_ && particle != nullptr) {
            return {std::string(particle->ipa), particle->liaison};
        }
        const bool isVerb = index == verb_;
        const auto sounds = wordSounds(decoded(text), isVerb ? tense_ : Tense::Participle,
                                       isVerb ? person_ : Person::Nobody, infinitive_);
        const bool auxiliary = isVerb && compound_;
        return {ipaOf(sounds), auxiliary ? auxiliaryLiaison(text, person_) : ""};
    }

    /// Auxiliaries, en and y are never aspirated.
    bool isLinkedTo(std::size_t index) const
    {
        if (index >= tokens_.size()) {
            return false;
        }
        const auto next = tokens_[index].text;
        if (index != verb_ && particleNamed(next) != nullptr) {
            return next == "en" || next == "-en" || next == "y";
        }
        const bool auxiliary = compound_ && index == verb_;
        return (auxiliary || !row_.aspirated) && beginsWithVowel(decoded(next));
    }

    std::vector<Token> tokens_;
    const Row& row_;
    Letters infinitive_;
    Tense tense_;
    Person person_ = Person::Nobody;
    std::size_t verb_ = 0;
    bool compound_ = false;
};

/// "qu'il/elle/on s'" is "qu'il s'".
std::string firstPronoun(std::string_view pronoun)
{
    const auto slash = pronoun.find('/');
    if (slash == std::string_view::npos) {
        return std::string(pronoun);
    }
    const auto space = pronoun.find(' ', slash);
    std::string first(pronoun.substr(0, slash));
    if (space != std::string_view::npos) {
        first += pronoun.substr(space);
    }
    return first;
}

/// The pronoun as it stands before a variant: elided or not, and left out where
/// the variant has its own ("suis apparu, j'ai apparu").
std::string pronounBefore(std::string_view variant, std::string pronoun, bool aspirated)
{
    const auto own = tokensOf(variant, 0, variant.size());
    if (pronoun.empty() || own.empty()) {
        return {};
    }
    if (own.size() > 1 && particleNamed(own[0].text) != nullptr) {
        const auto subject = pronoun.find(' ');
        return pronoun.starts_with("que ") ? pronoun.substr(0, subject + 1) : std::string();
    }
    const bool open = beginsWithVowel(decoded(own[0].text)) && (!aspirated || own.size() > 1);
    if (pronoun.ends_with('\'') && !open) {
        pronoun.back() = 'e';
    } else if (pronoun.ends_with('e') && !pronoun.ends_with("elle") && open) {
        pronoun.back() = '\'';
    }
    return text::beforeForm(pronoun);
}

std::string joined(const std::vector<SpokenWord>& words, std::string_view text)
{
    std::string ipa;
    for (const auto& word : words) {
        ipa += word.ipa;
        const auto end = word.begin + word.length;
        if (word.linked) {
            ipa += kLink;
        } else if (end < text.size() && text[end - 1] != '\'') {
            ipa += ' ';
        }
    }
    return ipa;
}

} // namespace

std::vector<SpokenWord> spokenWords(std::string_view text, const Row& row)
{
    std::vector<SpokenWord> words;
    const auto tense = tenseNamed(row.tense);
    if (!tense) {
        return words;
    }
    auto person = Person::Nobody;
    for (std::size_t begin = 0; begin < text.size();) {
        const auto end = std::min(text.find(kVariants, begin), text.size());
        if (auto tokens = tokensOf(text, begin, end); !tokens.empty()) {
            const Speaker speaker(std::move(tokens), row, *tense, person);
            speaker.speak(words);
            person = speaker.person();
        }
        begin = end + kVariants.size();
    }
    return words;
}

std::string ipa(const Row& row)
{
    const auto pronoun = firstPronoun(row.pronoun);
    std::string all;
    const auto form = text::withoutBracketedEndings(row.form).text;
    for (std::size_t begin = 0; begin <= form.size();) {
        const auto end = std::min(form.find(kVariants, begin), form.size());
        const auto variant = form.substr(begin, end - begin);
        const auto text = pronounBefore(variant, pronoun, row.aspirated) + variant;
        all += all.empty() ? "" : kVariants;
        all += joined(spokenWords(text, row), text);
        begin = end + kVariants.size();
    }
    return all;
}

} // namespace lumora::sound
