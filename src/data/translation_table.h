// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/verb.h"

#include <array>
#include <string>
#include <string_view>

namespace lumora::data {

/// A language that verbs are translated into, and where its words are kept.
struct TranslationLanguage {
    /// Two letters, as stored and as the device's languages begin.
    std::string_view code;
    std::string_view nameKey;
    std::string Verb::*text;
    std::string Verb::*simplifiedText;
    /// Columns of the table "verb". Empty where the database has none.
    std::string_view column;
    /// Without accents. English has no such column: it is the plain one.
    std::string_view simplifiedColumn;
    /// The column that lists are ordered by.
    std::string_view sortColumn;

    bool hasColumn() const { return !column.empty(); }
};

/// In the order in which they are offered to the user. Those without a column
/// are not offered.
extern const std::array<TranslationLanguage, 8> kTranslationLanguages;

/// Null for a code that is none of ours.
const TranslationLanguage* languageWithCode(std::string_view code);

/// By the first two letters of a language such as "pt-BR"; English for every
/// language without a column.
const TranslationLanguage& languageWithColumn(std::string_view language);

/// The language of the lists, which is the user's choice, else the device's.
const TranslationLanguage& listLanguage(const platform::SettingsStore& settings,
                                        const platform::Device& device);

} // namespace lumora::data
