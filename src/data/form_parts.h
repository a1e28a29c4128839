// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/conjugation.h"
#include "platform/base/error.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lumora::platform {
class Database;
}

namespace lumora::data {

/// One spelling of a form, cut into stem and ending as French lessons do it.
struct FormParts {
    enum class Kind {
        /// An auxiliary, with the pronouns in the form, and a participle.
        Compound,
        /// Nothing in the form is regular: (je) vais.
        Irregular,
        /// The stem is the infinitive's, or the infinitive itself: parl|e, parler|ai.
        Regular,
        /// The stem differs from the infinitive's: achèt|e, mange|ons, viendr|ai.
        ChangedStem,
    };

    Kind kind = Kind::Irregular;
    /// The stem with what stands before it; the auxiliary; or the whole form.
    std::string stem;
    /// What follows; the participle. Empty where a stem stands alone: (il) rend.
    std::string ending;

    /// The spelling: the parts joined, with a blank between those of a compound form.
    std::string text() const;
};

/// How the forms of one verb are cut. Empty for a verb of which the database
/// does not tell.
class FormDivisions {
public:
    FormDivisions() = default;
    /// As the database packs them: a NUL behind each shown row, in it a byte a
    /// spelling, 1 for a compound form, 2 for an irregular one, else 4, more by two
    /// for each byte of the ending, and by one when the stem is a changed one.
    explicit FormDivisions(std::string_view packed);

    /// The spellings in a row of this verb, in its order. A spelling that the
    /// divisions do not fit is irregular.
    std::vector<FormParts> parts(const Conjugation& row) const;

private:
    /// By the order of the rows.
    std::vector<std::string> rows_;
};

/// An error when the database cannot be asked, as of a file without the table.
platform::Result<FormDivisions> readFormDivisions(platform::Database& database,
                                                  std::int64_t verbId);

/// The spellings in a form as a row shows it: "paie, paye" is two.
std::vector<std::string> spellingsOf(std::string_view form);

} // namespace lumora::data
