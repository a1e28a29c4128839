// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/pronoun.h"

namespace lumora::text {

std::string beforeForm(std::string_view pronoun)
{
    std::string before{pronoun};
    if (!pronoun.empty() && !pronoun.ends_with('\'')) {
        before += ' ';
    }
    return before;
}

} // namespace lumora::text
