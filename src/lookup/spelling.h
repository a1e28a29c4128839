// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>

namespace lumora::lookup {

/// Composed, in lower case, with one kind of apostrophe, dash and blank, and
/// without punctuation at the ends: what a phrase is cut from.
std::string tidied(std::string_view text);

/// text::folded of a tidied text, fast where all letters are French.
std::string foldedWord(std::string_view tidy);

/// A form without what makes it agree and without its own pronouns: "allé" for
/// "allé(e)(s)", "évanouir" for "s'évanouir", "va" for "va-t'en".
std::string withoutAgreement(std::string_view form);
std::string withoutPronouns(std::string_view form);

} // namespace lumora::lookup
