// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "conjugator/conjugator.h"

#include "conjugator/text_table.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace lumora::conjugator {

namespace {

constexpr std::size_t kThirdSingular = 2;
/// tu, nous, vous.
constexpr std::array<std::size_t, 3> kCommanded{1, 3, 4};

constexpr std::array<std::string_view, kPersons> kSubjects{"je",   "tu",   "il/elle/on",
                                                           "nous", "vous", "ils/elles"};
constexpr std::array<std::string_view, kPersons> kReflexives{"me",   "te",   "se",
                                                             "nous", "vous", "se"};
constexpr std::array<std::string_view, 3> kReflexiveCommands{"-toi", "-nous", "-vous"};

bool beginsWithOneOf(std::string_view word, std::string_view letters)
{
    const auto beginnings = split(letters, " ");
    return std::any_of(beginnings.begin(), beginnings.end(),
                       [&](const std::string& letter) { return word.starts_with(letter); });
}

/// Whether je, me, te, se and que lose their e before the word.
bool elides(std::string_view word, bool aspirated)
{
    if (aspirated) {
        return false;
    }
    // y is a vowel before a consonant (ypérite), a consonant before a vowel.
    if (word.starts_with('y')) {
        return !beginsWithOneOf(word.substr(1), "a e é è ê i o ô u");
    }
    return beginsWithOneOf(word, "a à â e é è ê ë i î ï o ô œ u ù û ü h");
}

std::string elided(std::string_view particle, std::string_view word, bool aspirated)
{
    if (!elides(word, aspirated)) {
        return std::string(particle) + " ";
    }
    return std::string(particle.substr(0, particle.size() - 1)) + "'";
}

std::string joined(const Forms& forms)
{
    std::string text;
    for (const auto& form : forms) {
        text += (text.empty() ? "" : ", ") + form;
    }
    return text;
}

enum class Number { Singular, Plural, Either };

/// The ways in which a participle agrees with the subject of être.
class Agreement {
public:
    Agreement(const Paradigm& verb, bool agrees)
        : forms_(verb.participle), agrees_(agrees && !verb.participle[1].empty())
    {}

    /// "allé(e)s", "épris(es)": one text for every gender.
    Forms bracketed(Number number) const
    {
        if (!agrees_) {
            return forms_[0];
        }
        Forms texts;
        for (std::size_t i = 0; i < forms_[0].size(); ++i) {
            texts.push_back(
                bracketed(number, forms_[0][i], forms_[1][std::min(i, forms_[1].size() - 1)]));
        }
        return texts;
    }

    Forms words(Number number) const
    {
        if (!agrees_) {
            return forms_[0];
        }
        Forms words;
        for (std::size_t form = 0; form < forms_.size(); ++form) {
            const bool plural = form >= 2;
            if (number != Number::Either && plural != (number == Number::Plural)) {
                continue;
            }
            for (const auto& word : forms_[form]) {
                if (std::find(words.begin(), words.end(), word) == words.end()) {
                    words.push_back(word);
                }
            }
        }
        return words;
    }

private:
    static std::string bracketed(Number number, const std::string& masculine,
                                 const std::string& feminine)
    {
        const bool plain = feminine == masculine + "e";
        const bool keepsS = masculine.ends_with('s');
        const auto ending = plain ? std::string("e") : changedEnding(masculine, feminine);
        switch (number) {
        case Number::Singular:
            return masculine + "(" + ending + ")";
        case Number::Plural:
            return keepsS  ? masculine + "(" + ending + "s)"
                   : plain ? masculine + "(e)s"
                           : masculine + "s(" + ending + "s)";
        case Number::Either:
            break;
        }
        return masculine + "(" + ending + ")(s)";
    }

    /// absous, absoute: "oute"; the ending is told from its vowels on.
    static std::string changedEnding(const std::string& masculine, const std::string& feminine)
    {
        const auto ends =
            std::mismatch(masculine.begin(), masculine.end(), feminine.begin(), feminine.end());
        auto begin = ends.second;
        while (begin != feminine.begin() &&
               std::string_view("aeiou").find(*(begin - 1)) != std::string_view::npos) {
            --begin;
        }
        return {begin, feminine.end()};
    }

    const std::array<Forms, 4>& forms_;
    bool agrees_;
};

constexpr std::array<Number, kPersons> kNumbers{Number::Singular, Number::Singular,
                                                Number::Singular, Number::Plural,
                                                Number::Either,   Number::Plural};

/// "ai parlé", "suis allé": every auxiliary form with every participle.
Forms compounds(const Forms& auxiliaries, const Forms& participles)
{
    Forms forms;
    for (const auto& auxiliary : auxiliaries) {
        for (const auto& participle : participles) {
            forms.push_back(auxiliary);
            forms.back().append(" ").append(participle);
        }
    }
    return forms;
}

/// The infinitive without the circumflex that i and u lost in 1990; jeûner keeps
/// it, to differ from jeune.
std::string respelled(std::string infinitive)
{
    if (infinitive == "jeûner") {
        return infinitive;
    }
    for (const auto& [old, plain] : {std::pair("î", "i"), std::pair("û", "u")}) {
        if (const auto at = infinitive.find(old); at != std::string::npos) {
            infinitive.replace(at, std::string_view(old).size(), plain);
        }
    }
    return infinitive;
}

/// Whether a row is one form as it is written, neither double nor bracketed.
bool isOneForm(const Row& row)
{
    return row.verb.find_first_of(",(") == std::string::npos;
}

/// Collects the rows of one verb.
class RowBuilder {
public:
    RowBuilder(const VerbEntry& entry, const Paradigm& verb) : entry_(entry), verb_(verb) {}

    void simpleTense(Tense tense, const PersonForms& forms)
    {
        for (std::size_t person = 0; person < kPersons; ++person) {
            if (isUsed(person)) {
                addForms(tense, person, forms[person]);
            }
        }
    }

    void imperative()
    {
        if (entry_.impersonal) {
            return;
        }
        for (std::size_t i = 0; i < kCommanded.size(); ++i) {
            auto forms = verb_.imperative[i];
            if (entry_.pronominal) {
                for (auto& form : forms) {
                    form += kReflexiveCommands[i];
                }
            }
            add(Tense::Imperatif, "", forms);
        }
    }

    void infinitive()
    {
        auto forms = verb_.infinitive;
        for (auto& form : forms) {
            form.insert(0, reflexive(form));
        }
        add(Tense::Infinitif, "", forms);
    }

    void participles()
    {
        auto forms = verb_.gerund;
        for (auto& form : forms) {
            form.insert(0, reflexive(form));
        }
        add(Tense::Participe, "", forms);
        const std::size_t count = entry_.invariableParticiple ? 1 : verb_.participle.size();
        for (std::size_t form = 0; form < count; ++form) {
            add(Tense::Participe, "", verb_.participle[form]);
        }
    }

    /// The compound tenses of one block; of the auxiliary that is not shown
    /// the rows serve the search alone.
    void compoundTense(Tense tense, const PersonForms& auxiliary, bool etre, bool shown)
    {
        for (std::size_t person = 0; person < kPersons; ++person) {
            if (isUsed(person)) {
                addCompound(tense, person, auxiliary[person], kNumbers[person], etre, shown);
            }
        }
    }

    void pastImperative(const Paradigm& auxiliary, bool etre, bool shown)
    {
        if (entry_.impersonal || entry_.pronominal) {
            return;
        }
        for (std::size_t i = 0; i < kCommanded.size(); ++i) {
            if (isUsed(kCommanded[i]) && hasImperative()) {
                addCompound(Tense::Imperatif, kNoPerson, auxiliary.imperative[i],
                            kNumbers[kCommanded[i]], etre, shown);
            }
        }
    }

    void pastOf(Tense tense, const Forms& auxiliary, bool etre, bool shown)
    {
        Forms forms;
        for (const auto& form : auxiliary) {
            forms.push_back(reflexive(form) + form);
        }
        addCompound(tense, kNoPerson, forms, Number::Either, etre, shown);
    }

    void searchRow(Tense tense, std::string pronoun, std::string verb)
    {
        hidden_.push_back({tense, std::move(pronoun), std::move(verb), false});
    }

    std::string reflexive(std::string_view word) const
    {
        return entry_.pronominal ? elided("se", word, entry_.aspirated) : std::string();
    }

    std::vector<Row> take()
    {
        auto rows = std::move(shown_);
        for (auto* more : {&variants_, &hidden_}) {
            std::move(more->begin(), more->end(), std::back_inserter(rows));
        }
        return rows;
    }

private:
    static constexpr std::size_t kNoPerson = kPersons;

    bool isUsed(std::size_t person) const
    {
        return verb_.persons[person] && (!entry_.impersonal || person == kThirdSingular);
    }

    bool hasImperative() const
    {
        return std::any_of(verb_.imperative.begin(), verb_.imperative.end(),
                           [](const Forms& forms) { return !forms.empty(); });
    }

    /// An infinitive or a participle has no pronoun.
    std::string pronoun(Tense tense, std::size_t person, std::string_view word,
                        bool aspirated) const
    {
        if (person == kNoPerson) {
            return {};
        }
        std::string subject(kSubjects[person]);
        if (entry_.impersonal && person == kThirdSingular) {
            subject = "il";
        }
        std::string reflexive;
        if (entry_.pronominal) {
            reflexive = kReflexives[person];
            if (reflexive.ends_with('e')) {
                reflexive = elided(reflexive, word, aspirated);
            }
            subject += " " + reflexive;
        } else if (person == 0) {
            subject = elided(subject, word, aspirated);
        }
        if (subject.ends_with(' ')) {
            subject.pop_back();
        }

        switch (tense) {
        case Tense::SubjonctifImparfait:
        case Tense::SubjonctifPasse:
        case Tense::SubjonctifPlusqueParfait:
        case Tense::SubjonctifPresent:
            return (subject.starts_with('i') ? "qu'" : "que ") + subject;
        default:
            return subject;
        }
    }

    void addForms(Tense tense, std::size_t person, const Forms& forms)
    {
        if (!forms.empty()) {
            add(tense, pronoun(tense, person, forms.front(), entry_.aspirated), forms);
        }
    }

    /// Double forms share a row; each of them alone is there for the search.
    void add(Tense tense, const std::string& pronoun, const Forms& forms)
    {
        if (forms.empty()) {
            return;
        }
        shown_.push_back({tense, pronoun, joined(forms), true});
        if (forms.size() > 1) {
            for (const auto& form : forms) {
                variants_.push_back({tense, pronoun, form, false});
            }
        }
    }

    void addCompound(Tense tense, std::size_t person, const Forms& auxiliary, Number number,
                     bool etre, bool shown)
    {
        if (auxiliary.empty() || verb_.participle[0].empty()) {
            return;
        }
        // With the impersonal il the participle never agrees.
        const Agreement agreement(verb_,
                                  etre && !entry_.impersonal && !entry_.invariableParticiple);
        // An auxiliary is never aspirated, whatever the verb.
        const auto subject = pronoun(tense, person, auxiliary.front(), false);
        const auto texts = compounds(auxiliary, agreement.bracketed(number));
        const auto words = compounds(auxiliary, agreement.words(number));
        if (shown) {
            shown_.push_back({tense, subject, joined(texts), true});
        }
        if (!shown || words != texts) {
            for (const auto& word : words) {
                searchRow(tense, subject, word);
            }
        }
    }

    const VerbEntry& entry_;
    const Paradigm& verb_;
    std::vector<Row> shown_;
    std::vector<Row> variants_;
    std::vector<Row> hidden_;
};

} // namespace

Conjugator::Conjugator(ModelTable models)
    : models_(std::move(models)),
      avoir_(models_.conjugate("avoir", "avoir")),
      etre_(models_.conjugate("être", "être"))
{}

std::string Conjugator::headword(const VerbEntry& entry) const
{
    if (!entry.pronominal) {
        return entry.infinitive;
    }
    return entry.infinitive + (elides(entry.infinitive, entry.aspirated) ? " (s')" : " (se)");
}

std::vector<Row> Conjugator::rows(const VerbEntry& entry) const
{
    const auto verb = models_.conjugate(entry.model, entry.infinitive);
    RowBuilder builder(entry, verb);

    const auto compound = [&](Tense tense, bool etre, bool shown) {
        const auto& auxiliary = etre ? etre_ : avoir_;
        const auto persons = [&](const PersonForms& forms) {
            builder.compoundTense(tense, forms, etre, shown);
        };
        switch (tense) {
        case Tense::ConditionnelPasse1reForme:
            return persons(auxiliary.conditional);
        case Tense::ConditionnelPasse2eForme:
        case Tense::SubjonctifPlusqueParfait:
            return persons(auxiliary.pastSubjunctive);
        case Tense::Imperatif:
            return builder.pastImperative(auxiliary, etre, shown);
        case Tense::IndicatifFuturAnterieur:
            return persons(auxiliary.future);
        case Tense::IndicatifPasseAnterieur:
            return persons(auxiliary.past);
        case Tense::IndicatifPasseCompose:
            return persons(auxiliary.present);
        case Tense::IndicatifPlusQueParfait:
            return persons(auxiliary.imperfect);
        case Tense::Infinitif:
            return builder.pastOf(tense, auxiliary.infinitive, etre, shown);
        case Tense::Participe:
            return builder.pastOf(tense, auxiliary.gerund, etre, shown);
        case Tense::SubjonctifPasse:
            return persons(auxiliary.subjunctive);
        default:
            return;
        }
    };
    const auto simple = [&](Tense tense) {
        switch (tense) {
        case Tense::ConditionnelPresent:
            return builder.simpleTense(tense, verb.conditional);
        case Tense::Imperatif:
            return builder.imperative();
        case Tense::IndicatifFuturSimple:
            return builder.simpleTense(tense, verb.future);
        case Tense::IndicatifImparfait:
            return builder.simpleTense(tense, verb.imperfect);
        case Tense::IndicatifPasseSimple:
            return builder.simpleTense(tense, verb.past);
        case Tense::IndicatifPresent:
            return builder.simpleTense(tense, verb.present);
        case Tense::Infinitif:
            return builder.infinitive();
        case Tense::Participe:
            return builder.participles();
        case Tense::SubjonctifImparfait:
            return builder.simpleTense(tense, verb.pastSubjunctive);
        case Tense::SubjonctifPresent:
            return builder.simpleTense(tense, verb.subjunctive);
        default:
            return;
        }
    };

    const bool etreShown =
        entry.auxiliary == Auxiliary::Etre || entry.auxiliary == Auxiliary::EtreThenAvoir;
    for (std::size_t block = 0; block < kTenseNames.size(); ++block) {
        const auto tense = static_cast<Tense>(block);
        simple(tense);
        compound(tense, etreShown, true);
    }
    if (entry.pronominal) {
        builder.searchRow(Tense::Infinitif, "",
                          builder.reflexive(entry.infinitive) + entry.infinitive);
    }
    if (entry.auxiliary == Auxiliary::AvoirThenEtre ||
        entry.auxiliary == Auxiliary::EtreThenAvoir) {
        for (std::size_t block = 0; block < kTenseNames.size(); ++block) {
            compound(static_cast<Tense>(block), !etreShown, false);
        }
    }
    auto rows = builder.take();

    // Where the circumflex stands before the ending, the whole verb has a second
    // spelling; it is found, but not shown beside every form. A verb in -aître is
    // no longer of its model then: that one tells the spellings itself.
    auto modern = entry;
    modern.infinitive = respelled(entry.infinitive);
    if (modern.infinitive != entry.infinitive &&
        models_.misfit(entry.model, modern.infinitive).empty()) {
        for (auto& row : this->rows(modern)) {
            if (isOneForm(row)) {
                row.shown = false;
                rows.push_back(std::move(row));
            }
        }
    }
    return rows;
}

} // namespace lumora::conjugator
