// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "detail/form_style.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace lumora::detail {

namespace {

using Kind = data::FormParts::Kind;
using platform::LineStyle;
using platform::RunStyle;

constexpr std::string_view kPresent = "hint.present";
constexpr std::string_view kPast = "hint.past";
constexpr std::string_view kCompound = "hint.compound";
/// In the order in which a participle's rows show them.
constexpr std::array<std::string_view, 4> kAgreements{
    "hint.masculine", "hint.feminine", "hint.masculine.plural", "hint.feminine.plural"};

void add(std::vector<platform::TextRun>& runs, std::string text, RunStyle style)
{
    if (!text.empty()) {
        runs.push_back({std::move(text), style});
    }
}

void addParts(std::vector<platform::TextRun>& runs, const data::FormParts& parts)
{
    switch (parts.kind) {
    case Kind::Compound:
        add(runs, parts.stem + ' ', RunStyle::Light);
        add(runs, parts.ending, RunStyle::Strong);
        break;
    case Kind::Irregular:
        add(runs, parts.stem, RunStyle::Underlined);
        break;
    case Kind::Regular:
    case Kind::ChangedStem:
        add(runs, parts.stem, parts.kind == Kind::Regular ? RunStyle::Plain : RunStyle::Underlined);
        add(runs, parts.ending, RunStyle::Accent);
        break;
    }
}

/// The spelling that stands first.
std::string_view firstSpelling(const std::shared_ptr<const data::Conjugation>& form)
{
    const std::string_view text = form->verb;
    return text.substr(0, text.find(", "));
}

/// The person that an imperative speaks to, by its pronoun or else by its ending.
std::string_view commanded(std::string_view form)
{
    const auto word = form.substr(0, form.find(' '));
    const auto endsWith = [&](std::string_view plain, std::string_view withEn) {
        return word.ends_with(plain) || word.ends_with(withEn);
    };
    if (endsWith("-toi", "-t'en")) {
        return "tu";
    }
    if (endsWith("-nous", "-nous-en") || word.ends_with("ons")) {
        return "nous";
    }
    // "faites" and its like.
    return endsWith("-vous", "-vous-en") || endsWith("ez", "tes") ? "vous" : "tu";
}

std::vector<LineStyle> imperativeHints(const data::ConjugationList& forms, const TitleText& text)
{
    const auto isPast = [](const auto& form) {
        return firstSpelling(form).find(' ') != std::string_view::npos;
    };
    const bool both = std::any_of(forms.begin(), forms.end(), isPast);
    std::vector<LineStyle> hints;
    std::string group;
    for (const auto& form : forms) {
        auto& hint = hints.emplace_back();
        hint.hint = commanded(firstSpelling(form));
        hint.accessibilityHint = hint.hint;
        if (!both) {
            continue;
        }
        auto time = text(isPast(form) ? kPast : kPresent);
        hint.accessibilityHint += ", " + time;
        if (time != group) {
            hint.caption = time;
            group = std::move(time);
        }
    }
    return hints;
}

std::string_view participleKind(std::string_view form)
{
    for (const auto auxiliary : {"ayant ", "étant "}) {
        if (form.find(auxiliary) != std::string_view::npos) {
            return kCompound;
        }
    }
    return form.ends_with("ant") ? kPresent : kPast;
}

std::vector<LineStyle> participleHints(const data::ConjugationList& forms, const TitleText& text)
{
    std::vector<std::string_view> kinds;
    for (const auto& form : forms) {
        kinds.push_back(participleKind(firstSpelling(form)));
    }
    const bool agrees =
        std::count(kinds.begin(), kinds.end(), kPast) == static_cast<int>(kAgreements.size());
    std::vector<LineStyle> hints;
    std::size_t agreement = 0;
    for (const auto kind : kinds) {
        auto& hint = hints.emplace_back();
        hint.hint = text(kind);
        hint.accessibilityHint = hint.hint;
        if (kind == kPast && agrees) {
            if (agreement == 0) {
                hint.caption = hint.hint;
            }
            hint.hint = text(kAgreements[agreement++]);
            hint.accessibilityHint += ", " + hint.hint;
        }
    }
    return hints;
}

} // namespace

MarkedForm markedForm(const data::Conjugation& row, const data::FormDivisions& divisions)
{
    MarkedForm marked;
    for (const auto& parts : divisions.parts(row)) {
        add(marked.runs, marked.runs.empty() ? "" : ", ", RunStyle::Plain);
        addParts(marked.runs, parts);
        if (parts.kind == Kind::Irregular) {
            marked.noteKey = "form.irregular";
        } else if (parts.kind == Kind::ChangedStem && marked.noteKey.empty()) {
            marked.noteKey = "form.stem";
        }
    }
    return marked;
}

std::vector<platform::LineStyle> hintsOf(std::string_view tense, const data::ConjugationList& forms,
                                         const TitleText& text)
{
    if (tense == "imperatif") {
        return imperativeHints(forms, text);
    }
    if (tense == "participe") {
        return participleHints(forms, text);
    }
    return std::vector<LineStyle>(forms.size());
}

} // namespace lumora::detail
