// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/form_parts.h"
#include "data/verb.h"
#include "platform/screens/line_style.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace lumora::detail {

/// A form in parts of different styles, and the key of the text that tells a screen
/// reader's user what the styles show; empty where they show nothing special.
struct MarkedForm {
    std::vector<platform::TextRun> runs;
    std::string_view noteKey;
};

/// An ending is in the accent, a stem that is not the infinitive's underlined,
/// an irregular form too; an auxiliary is light and its participle strong.
MarkedForm markedForm(const data::Conjugation& row, const data::FormDivisions& divisions);

/// The text of a key in the language of the titles.
using TitleText = std::function<std::string(std::string_view key)>;

/// Which person, time or gender the rows of a tense without pronouns are of:
/// hints and captions, one style a row. Empty ones for other tenses.
std::vector<platform::LineStyle> hintsOf(std::string_view tense, const data::ConjugationList& forms,
                                         const TitleText& text);

} // namespace lumora::detail
