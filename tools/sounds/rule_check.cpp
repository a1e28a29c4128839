// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sounds/rule_check.h"

#include "conjugator/elision.h"
#include "sound/letters.h"

#include <algorithm>
#include <array>
#include <map>
#include <ostream>
#include <set>
#include <string>
#include <string_view>
#include <utility>

namespace lumora::sounds {

namespace {

using conjugator::Tense;
using sound::Person;

/// How je to ils end in a tense, parted by spaces; "-" where verbs differ.
struct Endings {
    Tense tense;
    std::array<std::string_view, 6> persons;
};

constexpr std::array<Endings, 5> kEndings{{
    {Tense::IndicatifImparfait, {"ɛ", "ɛ", "ɛ", "jɔ̃", "je", "ɛ"}},
    {Tense::IndicatifFuturSimple, {"ʁe", "ʁa", "ʁa", "ʁɔ̃", "ʁe", "ʁɔ̃"}},
    {Tense::ConditionnelPresent, {"ʁɛ", "ʁɛ", "ʁɛ", "jɔ̃", "je", "ʁɛ"}},
    {Tense::SubjonctifImparfait, {"s", "s", "", "sjɔ̃", "sje", "s"}},
    {Tense::IndicatifPasseSimple, {"", "", "", "m", "t", "ʁ"}},
}};

/// What is said alike in every verb.
constexpr std::array<std::pair<Tense, std::array<Person, 4>>, 3> kAlike{{
    {Tense::IndicatifImparfait, {Person::Je, Person::Tu, Person::Il, Person::Ils}},
    {Tense::ConditionnelPresent, {Person::Je, Person::Tu, Person::Il, Person::Ils}},
    {Tense::SubjonctifPresent, {Person::Je, Person::Tu, Person::Il, Person::Ils}},
}};

class Rules {
public:
    Rules(const SpokenVerb& verb, std::ostream& output) : verb_(verb), output_(output)
    {
        for (const auto& form : verb.forms) {
            said_[{form.tense, form.person}].insert(form.ipa);
        }
    }

    int broken()
    {
        sounds();
        endings();
        alike();
        firstGroup();
        oneStem();
        contacts();
        return broken_;
    }

private:
    const conjugator::VerbEntry& entry() const { return verb_.verb->entry; }

    void breakRule(std::string_view rule, const std::string& form, const std::string& ipa)
    {
        ++broken_;
        output_ << rule << "\t" << entry().infinitive << "\t" << form << "\t" << ipa << "\n";
    }

    /// Every sound is French, every form and every row has a vowel.
    void sounds()
    {
        static const std::u32string kFrench = U"aeɛəiouyøœɔãẽõũbdfɡjklmnŋɲpʁsʃtvwɥzʒ ‿,";
        const auto check = [&](const std::string& form, const std::string& ipa) {
            const auto sounds = sound::soundsOf(sound::decoded(ipa));
            if (sounds.find_first_not_of(kFrench) != std::u32string::npos ||
                std::none_of(sounds.begin(), sounds.end(), sound::isVowelSound)) {
                breakRule("not French", form, ipa);
            }
        };
        for (const auto& form : verb_.forms) {
            check(form.form, form.ipa);
            check(form.form, form.rowIpa);
        }
        for (const auto& ipa : verb_.compoundIpa) {
            check("", ipa);
        }
    }

    void endings()
    {
        for (const auto& form : verb_.forms) {
            for (const auto& [tense, persons] : kEndings) {
                if (form.tense == tense && form.person != Person::Nobody &&
                    !form.ipa.ends_with(persons[static_cast<std::size_t>(form.person)])) {
                    breakRule("ending", form.form, form.ipa);
                }
            }
            const auto ends = [&](std::string_view spelled, std::string_view said) {
                return !form.form.ends_with(spelled) || form.ipa.ends_with(said);
            };
            const bool infinitive = form.tense == Tense::Infinitif;
            if ((infinitive && (!ends("er", "e") || !(ends("oir", "waʁ") || ends("ir", "iʁ")))) ||
                (form.tense == Tense::Participe && !ends("ant", "ɑ̃")) ||
                (form.person == Person::Nous && !ends("ons", "ɔ̃")) ||
                (form.person == Person::Vous && !ends("ez", "e")) ||
                (form.person == Person::Ils && form.tense != Tense::Infinitif &&
                 form.form.ends_with("ent") && form.ipa.ends_with("ɑ̃"))) {
                breakRule("ending", form.form, form.ipa);
            }
        }
    }

    void alike()
    {
        for (const auto& [tense, persons] : kAlike) {
            std::set<std::set<std::string>> heard;
            for (const auto person : persons) {
                if (const auto found = said_.find({tense, person}); found != said_.end()) {
                    heard.insert(found->second);
                }
            }
            if (heard.size() > 1) {
                breakRule("alike", conjugator::name(tense).data(), *heard.begin()->begin());
            }
        }
    }

    /// parle, parles, parlent; and parlait as parler with another vowel.
    void firstGroup()
    {
        if (!entry().infinitive.ends_with("er") || entry().model == "aller") {
            return;
        }
        const auto present = [&](Person person) {
            const auto found = said_.find({Tense::IndicatifPresent, person});
            return found == said_.end() ? std::set<std::string>() : found->second;
        };
        const auto il = present(Person::Il);
        for (const auto person : {Person::Je, Person::Tu, Person::Ils}) {
            if (const auto other = present(person); !other.empty() && other != il) {
                breakRule("alike", "present", *other.begin());
            }
        }
        const auto vous = present(Person::Vous);
        const auto infinitive = said_.find({Tense::Infinitif, Person::Nobody});
        if (!vous.empty() && infinitive != said_.end() &&
            !std::includes(infinitive->second.begin(), infinitive->second.end(), vous.begin(),
                           vous.end())) {
            breakRule("alike", "vous and infinitive", *vous.begin());
        }
    }

    /// Before every vowel a stem is said as in the infinitive: fourmillé, courrouçons.
    void oneStem()
    {
        const auto infinitive = said_.find({Tense::Infinitif, Person::Nobody});
        if (!entry().infinitive.ends_with("er") || infinitive == said_.end()) {
            return;
        }
        const auto hasStem = [&](const std::string& ipa) {
            return std::any_of(infinitive->second.begin(), infinitive->second.end(),
                               [&](const std::string& whole) {
                                   return ipa.starts_with(whole.substr(0, whole.size() - 1));
                               });
        };
        for (const auto& form : verb_.forms) {
            if (opensWithVowel(endingOf(form.form)) && !hasStem(form.ipa)) {
                breakRule("stem", form.form, form.ipa);
            }
        }
    }

    /// What stands after the stem of the infinitive; empty where another stem does.
    std::string_view endingOf(std::string_view form) const
    {
        const auto stem = entry().infinitive.substr(0, entry().infinitive.size() - 2);
        const bool soft = stem.ends_with('c');
        for (const auto& before : {stem, soft ? stem.substr(0, stem.size() - 1) + "ç" : stem}) {
            if (form.starts_with(before)) {
                return form.substr(before.size());
            }
        }
        return {};
    }

    static bool opensWithVowel(std::string_view ending)
    {
        constexpr std::array<std::string_view, 6> kVowels{"a", "â", "é", "ez", "ea", "eo"};
        return ending.starts_with("ons") ||
               std::any_of(kVowels.begin(), kVowels.end(),
                           [&](std::string_view vowel) { return ending.starts_with(vowel); });
    }

    /// j' and nous‿ before a vowel, neither before a consonant or h aspiré.
    void contacts()
    {
        for (const auto& form : verb_.forms) {
            if (form.person == Person::Nobody) {
                continue;
            }
            const bool open = conjugator::elides(form.form, entry().aspirated);
            // En is linked on both sides: nous nous‿en sortons, je m'en‿allais.
            const bool en = form.pronoun.ends_with(" en") || form.pronoun.ends_with("'en");
            const bool linked = form.rowIpa.find("‿") != std::string::npos;
            const bool mayLink = form.person == Person::Nous || form.person == Person::Vous ||
                                 (!entry().pronominal && form.person == Person::Ils);
            if (linked != (((open || en) && mayLink) || (open && en))) {
                breakRule("liaison", form.pronoun + " " + form.form, form.rowIpa);
            }
            const bool elided = form.pronoun.ends_with('\'');
            const auto before = form.rowIpa.substr(0, form.rowIpa.size() - form.ipa.size());
            if (!form.rowIpa.ends_with(form.ipa) || (elided && before.ends_with(' '))) {
                breakRule("elision", form.pronoun + " " + form.form, form.rowIpa);
            }
        }
    }

    const SpokenVerb& verb_;
    std::ostream& output_;
    std::map<std::pair<Tense, Person>, std::set<std::string>> said_;
    int broken_ = 0;
};

} // namespace

bool followsRules(const std::vector<SpokenVerb>& verbs, std::ostream& output)
{
    int broken = 0;
    std::size_t rows = 0;
    for (const auto& verb : verbs) {
        broken += Rules(verb, output).broken();
        rows += verb.forms.size() + verb.compoundIpa.size();
    }
    output << verbs.size() << " verbs, " << rows << " forms, " << broken << " breaches of a rule\n";
    return broken == 0;
}

} // namespace lumora::sounds
