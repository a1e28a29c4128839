// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/speech/spoken_text.h"

#include "text/text.h"

#include <algorithm>

namespace lumora::qt {

namespace {

/// A byte of a letter, going by UTF-8; ASCII apart, letters need no telling
/// from signs here.
bool isLetterByte(char byte)
{
    const auto lowered = static_cast<unsigned char>(byte) | 0x20U;
    return lowered >= 0x80 || (lowered >= 'a' && lowered <= 'z');
}

} // namespace

SpokenText::SpokenText(std::string_view written)
{
    std::size_t place = 0;
    bool afterLetter = false;
    while (!written.empty()) {
        const auto close =
            written[0] == '(' && afterLetter ? written.find(')') : std::string_view::npos;
        // What is left out keeps the letter before it: "(e)(s)".
        const bool leftOut = close != std::string_view::npos;
        const auto part = written.substr(0, leftOut ? close + 1 : 1);
        const auto count = text::characterCount(part);
        if (!leftOut) {
            text_ += part;
            places_.insert(places_.end(), count, place);
            afterLetter = isLetterByte(part[0]);
        }
        place += count;
        written.remove_prefix(part.size());
    }
    places_.push_back(place);
}

std::pair<std::size_t, std::size_t> SpokenText::writtenRange(std::size_t location,
                                                             std::size_t length) const
{
    const auto last = places_.size() - 1;
    const auto begin = places_[std::min(location, last)];
    const auto end = places_[std::min(location + length, last)];
    return {begin, end - begin};
}

} // namespace lumora::qt
