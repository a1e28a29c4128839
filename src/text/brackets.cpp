// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/brackets.h"

#include "text/text.h"

#include <algorithm>

namespace lumora::text {

namespace {

bool isLetterByte(char byte)
{
    const auto lowered = static_cast<unsigned char>(byte) | 0x20U;
    return lowered >= 0x80 || (lowered >= 'a' && lowered <= 'z');
}

} // namespace

bool hasLetters(std::string_view text)
{
    return std::any_of(text.begin(), text.end(), isLetterByte);
}

ShortenedText withoutBracketedEndings(std::string_view written)
{
    ShortenedText spoken;
    std::size_t place = 0;
    bool afterLetter = false;
    while (!written.empty()) {
        const auto close =
            written[0] == '(' && afterLetter ? written.find(')') : std::string_view::npos;
        // What is left out keeps the letter before it: "(e)(s)".
        const bool leftOut = close != std::string_view::npos;
        const auto part = written.substr(0, leftOut ? close + 1 : 1);
        const auto count = characterCount(part);
        if (!leftOut) {
            spoken.text += part;
            spoken.places.insert(spoken.places.end(), count, place);
            afterLetter = isLetterByte(part[0]);
        }
        place += count;
        written.remove_prefix(part.size());
    }
    return spoken;
}

} // namespace lumora::text
