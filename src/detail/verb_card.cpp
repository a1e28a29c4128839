// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "detail/verb_card.h"

#include "detail/missing_forms.h"
#include "platform/machine/bundle.h"
#include "text/text.h"

#include <algorithm>
#include <string_view>

namespace lumora::detail {

namespace {

using Lines = std::vector<VerbCardLine>;

bool contains(const std::vector<std::string>& words, std::string_view word)
{
    return std::find(words.begin(), words.end(), word) != words.end();
}

std::string joined(const std::vector<std::string>& words, std::string_view between)
{
    std::string text;
    for (const auto& word : words) {
        text += text.empty() ? "" : between;
        text += word;
    }
    return text;
}

/// Gésir and its like have no compound tense, and so no auxiliary.
bool hasAuxiliary(const data::Verb& verb)
{
    return !verb.indicatifPasseCompose.empty();
}

/// Writes the lines of one verb's card.
class CardWriter {
public:
    CardWriter(const data::Verb& verb, const std::optional<data::VerbFacts>& facts,
               const Wording& wording)
        : verb_(verb), facts_(facts), wording_(wording), missing_(missingForms(verb))
    {}

    Lines write(const data::VerbRelations& relations)
    {
        infinitives();
        if (facts_) {
            group();
            auxiliary();
        }
        notes();
        missing();
        if (facts_ && facts_->use > 0) {
            add("card.use", text("card.use." + std::to_string(facts_->use)));
        }
        links(data::isFiledWithPronoun(verb_.french) ? "card.plain" : "card.pronominal",
              relations.partners, false);
        links("card.homograph", relations.homographs, true);
        links("card.alike", relations.alike, false);
        return std::move(lines_);
    }

private:
    std::string text(std::string_view key) const
    {
        return platform::localizedString(wording_.bundle, key);
    }

    void add(std::string_view label, std::string value)
    {
        lines_.push_back({text(label), std::move(value), {}});
    }

    void infinitives()
    {
        constexpr std::string_view kLabels[] = {"card.infinitive", "card.infinitive.past"};

        const auto count = std::min(verb_.infinitif.size(), std::size(kLabels));
        for (std::size_t form = 0; form < count; ++form) {
            add(kLabels[form], verb_.infinitif[form]->verb);
        }
    }

    void group()
    {
        add("card.group", text("card.group." + std::to_string(facts_->group)));
        if (facts_->like) {
            lines_.push_back({text("card.like"), {}, {{facts_->like->id, facts_->like->french}}});
        }
    }

    void auxiliary()
    {
        const auto& verbs = facts_->auxiliaries;
        if (verbs.empty() || !hasAuxiliary(verb_)) {
            return;
        }
        const bool never = contains(facts_->participle, "invariable");
        const bool indirect = contains(facts_->participle, "indirect");
        const auto key = never                           ? "card.participle.invariable"
                         : indirect && verbs.size() == 1 ? "card.participle.indirect"
                         : verbs.size() > 1              ? "card.participle.both"
                         : verbs.front() == "avoir"      ? "card.participle.avoir"
                                                         : "card.participle.etre";
        add("card.auxiliary", joined(verbs, ", ") + text("text.colon") + text(key));
    }

    void notes()
    {
        std::vector<std::string> notes;
        if (facts_) {
            for (const auto& trait : facts_->traits) {
                notes.push_back(text("card.trait." + trait));
            }
        }
        if (missing_.thirdPersonOnly && !(facts_ && contains(facts_->traits, "impersonal"))) {
            notes.push_back(text("card.third_person"));
        }
        if (missing_.infinitiveOnly() && !verb_.infinitif.empty()) {
            notes.push_back(text("card.infinitive_only"));
        }
        if (!notes.empty()) {
            add("card.notes", joined(notes, "; "));
        }
    }

    void missing()
    {
        if (missing_.infinitiveOnly() || missing_.tenses.empty()) {
            return;
        }
        auto words = inWords(missing_, wording_.bundle, wording_.settings);
        add(words.usedOnly ? "card.used_only" : "card.unused", std::move(words.tenses));
    }

    void links(std::string_view label, const std::vector<data::VerbPtr>& verbs, bool translated)
    {
        if (verbs.empty()) {
            return;
        }
        VerbCardLine line{text(label), {}, {}};
        for (const auto& verb : verbs) {
            const auto& meaning = verb->translation(wording_.settings, wording_.device);
            line.links.push_back(
                {verb->id, translated ? verb->french + " (" + meaning + ")" : verb->french});
        }
        lines_.push_back(std::move(line));
    }

    const data::Verb& verb_;
    const std::optional<data::VerbFacts>& facts_;
    const Wording& wording_;
    MissingForms missing_;
    Lines lines_;
};

} // namespace

std::string verbSummary(const data::Verb& verb, const data::VerbFacts& facts,
                        const Wording& wording)
{
    const auto text = [&](std::string_view key) {
        return platform::localizedString(wording.bundle, key);
    };
    std::vector<std::string> parts{text("card.group.short." + std::to_string(facts.group))};
    if (facts.like) {
        parts.push_back(text::formatted(text("card.like.short"), {facts.like->french}));
    }
    if (hasAuxiliary(verb)) {
        parts.push_back(joined(facts.auxiliaries, ", "));
    }
    return joined(parts, " · ");
}

std::vector<VerbCardLine> verbCard(const data::Verb& verb,
                                   const std::optional<data::VerbFacts>& facts,
                                   const data::VerbRelations& relations, const Wording& wording)
{
    return CardWriter{verb, facts, wording}.write(relations);
}

} // namespace lumora::detail
