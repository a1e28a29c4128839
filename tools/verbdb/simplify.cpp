// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "verbdb/simplify.h"

#include "conjugator/text_table.h"
#include "text/text.h"

namespace lumora::verbdb {

namespace {

std::string_view withoutBrackets(std::string_view sense)
{
    const auto open = sense.rfind(" (");
    return sense.ends_with(')') && open != std::string_view::npos ? sense.substr(0, open) : sense;
}

} // namespace

std::string simplified(std::string_view text)
{
    std::string result;
    for (const auto& sense : conjugator::split(text, ", ")) {
        result += (result.empty() ? "" : ", ") + text::folded(withoutBrackets(sense));
    }
    return result;
}

} // namespace lumora::verbdb
