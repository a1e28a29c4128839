// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/pronoun.h"

namespace lumora::text {

bool isElided(std::string_view pronoun)
{
    return pronoun.ends_with('\'') || pronoun.ends_with("\u2019");
}

std::string beforeForm(std::string_view pronoun)
{
    std::string before{pronoun};
    if (!pronoun.empty() && !isElided(pronoun)) {
        before += ' ';
    }
    return before;
}

} // namespace lumora::text
