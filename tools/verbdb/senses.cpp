// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "verbdb/senses.h"

#include <algorithm>
#include <cstddef>

namespace lumora::verbdb {

std::vector<std::string> sensesOf(std::string_view translation)
{
    constexpr std::string_view kBetween = ", ";

    std::vector<std::string> senses(1);
    bool bracketed = false;
    while (!translation.empty()) {
        if (!bracketed && translation.starts_with(kBetween)) {
            senses.emplace_back();
            translation.remove_prefix(kBetween.size());
            continue;
        }
        const char c = translation.front();
        bracketed = c == '(' || (bracketed && c != ')');
        senses.back() += c;
        translation.remove_prefix(1);
    }
    return senses;
}

std::string_view withoutBrackets(std::string_view sense)
{
    while (sense.ends_with(')')) {
        const auto open = sense.rfind(" (");
        if (open == std::string_view::npos) {
            break;
        }
        sense = sense.substr(0, open);
    }
    return sense;
}

bool hasClosedBrackets(std::string_view text)
{
    bool open = false;
    const bool inOrder = std::all_of(text.begin(), text.end(), [&](char c) {
        if (c != '(' && c != ')') {
            return true;
        }
        open = !open;
        return open == (c == '(');
    });
    return inOrder && !open;
}

} // namespace lumora::verbdb
