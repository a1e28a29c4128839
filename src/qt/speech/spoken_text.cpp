// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/speech/spoken_text.h"

#include "qt/speech/espeak_phonemes.h"
#include "text/brackets.h"
#include "text/text.h"

#include <algorithm>

namespace lumora::qt {

namespace {

/// Takes the first characters off a text, at most all.
std::string_view takeCharacters(std::string_view& text, std::size_t count)
{
    std::size_t end = 0;
    const auto continues = [&] { return (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U; };
    while (end < text.size() && count > 0) {
        --count;
        do {
            ++end;
        } while (end < text.size() && continues());
    }
    const auto taken = text.substr(0, end);
    text.remove_prefix(end);
    return taken;
}

} // namespace

SpokenText::SpokenText(const platform::Utterance& utterance)
{
    std::string_view rest = utterance.text;
    std::size_t place = 0;
    const auto& words = utterance.words;
    for (auto word = words.begin(); word != words.end();) {
        const auto begin = word->location;
        auto end = begin;
        std::string ipa;
        for (; word != words.end() && (ipa.empty() || word->location == end); ++word) {
            end = word->location + word->length;
            ipa += word->ipa;
        }
        addText(takeCharacters(rest, begin - place), place);
        const auto written = takeCharacters(rest, end - begin);
        auto gap = rest;
        gap = word == words.end() ? rest : takeCharacters(gap, word->location - end);
        const bool last = word == words.end() && !text::hasLetters(gap);
        const auto names = espeakPhonemes(ipa, last || gap.find(',') != std::string_view::npos);
        if (names) {
            addPhonemes(*names, begin, end - begin);
        } else {
            addText(written, begin);
        }
        place = end;
    }
    addText(rest, place);
    places_.push_back(place + text::characterCount(rest));
}

void SpokenText::addText(std::string_view written, std::size_t place)
{
    const auto spoken = text::withoutBracketedEndings(written);
    text_ += spoken.text;
    for (const auto each : spoken.places) {
        places_.push_back(place + each);
    }
}

void SpokenText::addPhonemes(std::string_view names, std::size_t location, std::size_t length)
{
    const auto begin = places_.size();
    text_.append("[[").append(names).append("]]");
    places_.insert(places_.end(), names.size() + 4, location);
    groups_.push_back({begin, places_.size(), location, length});
}

std::pair<std::size_t, std::size_t> SpokenText::writtenRange(std::size_t location,
                                                             std::size_t length) const
{
    const auto group = std::find_if(groups_.begin(), groups_.end(), [&](const Group& each) {
        return location >= each.spokenBegin && location < each.spokenEnd;
    });
    if (group != groups_.end()) {
        return {group->location, group->length};
    }
    const auto last = places_.size() - 1;
    const auto begin = places_[std::min(location, last)];
    const auto end = places_[std::min(location + length, last)];
    return {begin, end - begin};
}

} // namespace lumora::qt
