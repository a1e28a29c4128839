// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "verbdb/simplify.h"

#include "text/text.h"
#include "verbdb/senses.h"

namespace lumora::verbdb {

std::string simplified(std::string_view text)
{
    std::string result;
    for (const auto& sense : sensesOf(text)) {
        result += (result.empty() ? "" : ", ") + text::folded(withoutBrackets(sense));
    }
    return result;
}

} // namespace lumora::verbdb
