// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "detail/form_style.h"

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace lumora::detail {
namespace {

/// _underlined_, <accent>, *strong*, ~light~.
std::string written(const std::vector<platform::TextRun>& runs)
{
    static constexpr std::pair<const char*, const char*> kSigns[] = {
        {"", ""}, {"~", "~"}, {"*", "*"}, {"<", ">"}, {"_", "_"}};
    std::string text;
    for (const auto& run : runs) {
        const auto& [before, after] = kSigns[static_cast<std::size_t>(run.style)];
        text += before + run.text + after;
    }
    return text;
}

TEST(FormStyle, SetsEachKindOfFormInItsParts)
{
    const struct {
        const char* form;
        std::string codes;
        const char* set;
        const char* note;
    } cases[] = {
        {"vais", "\x02", "_vais_", "form.irregular"},
        {"rend", "\x04", "rend", ""},
        {"parle", "\x06", "parl<e>", ""},
        {"achète", "\x07", "_achèt_<e>", "form.stem"},
        {"paie, paye", "\x07\x06", "_pai_<e>, pay<e>", "form.stem"},
        {"assieds, va", "\x05\x02", "_assieds_, _va_", "form.irregular"},
        {"suis allé(e)", "\x01", "~suis ~*allé(e)*", ""},
        {"vais", "", "_vais_", "form.irregular"},
    };
    for (const auto& c : cases) {
        const auto [runs, note] = markedForm({"je", c.form, "", 1}, data::FormDivisions{c.codes});
        EXPECT_EQ(written(runs), c.set);
        EXPECT_EQ(note, c.note) << c.form;
    }
}

TEST(FormStyle, TellsWhoAnImperativeSpeaksToAndWhichParticipleItIs)
{
    const struct {
        const char* tense;
        std::vector<const char*> forms;
        const char* hints;
    } cases[] = {
        {"imperatif",
         {"paie, paye", "faisons", "faites", "aie fait", "ayons fait", "ayez fait"},
         "present: tu| nous| vous|past: tu| nous| vous|"},
        {"imperatif", {"va-t'en", "allons-nous-en", "allez-vous-en"}, " tu| nous| vous|"},
        {"imperatif", {"lève-toi", "levons-nous", "levez-vous"}, " tu| nous| vous|"},
        {"imperatif", {"clos", "aie clos"}, "present: tu|past: tu|"},
        {"participe",
         {"se levant", "levé", "levée", "levés", "levées", "s'étant levé(e)(s)"},
         " present|past: masculine| feminine| masculine.plural| feminine.plural| compound|"},
        {"participe", {"étant", "été", "ayant été"}, " present| past| compound|"},
        {"participe", {"fallu", "ayant fallu"}, " past| compound|"},
        {"indicatifPresent", {"vais", "vas"}, " | |"},
    };
    for (const auto& c : cases) {
        data::ConjugationList forms;
        for (const auto* form : c.forms) {
            forms.push_back(
                std::make_shared<data::Conjugation>(data::Conjugation{"", form, c.tense, 0}));
        }
        std::string hints;
        for (const auto& hint : hintsOf(c.tense, forms, [](std::string_view key) {
                 return std::string{key.substr(key.find('.') + 1)};
             })) {
            hints += hint.caption + (hint.caption.empty() ? " " : ": ") + hint.hint + "|";
        }
        EXPECT_EQ(hints, c.hints);
    }
}

} // namespace
} // namespace lumora::detail
