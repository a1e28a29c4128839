// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sound/exceptions.h"

#include "sound/exception_table.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <string_view>

namespace lumora::sound {

namespace {

constexpr char32_t kStart = U'^';
constexpr char32_t kEnd = U'$';
constexpr char32_t kSoundQuote = U'/';

std::u32string_view withoutAnchors(std::u32string_view letters)
{
    if (letters.front() == kStart) {
        letters.remove_prefix(1);
    }
    if (letters.back() == kEnd) {
        letters.remove_suffix(1);
    }
    return letters;
}

std::span<const Exception> beginningWith(char32_t letter)
{
    const auto table = exceptionTable();
    const auto first = [](const Exception& entry) { return withoutAnchors(entry.letters).front(); };
    const auto low =
        std::lower_bound(table.begin(), table.end(), letter,
                         [&](const Exception& entry, char32_t l) { return first(entry) < l; });
    const auto high =
        std::upper_bound(low, table.end(), letter,
                         [&](char32_t l, const Exception& entry) { return l < first(entry); });
    return {low, high};
}

bool standsAt(const Letters& word, std::size_t at, std::u32string_view letters)
{
    const auto bare = withoutAnchors(letters);
    return (letters.front() != kStart || at == 0) && word.compare(at, bare.size(), bare) == 0 &&
           (letters.back() != kEnd || at + bare.size() == word.size());
}

/// The entry with the most letters, as what is longer is meant more exactly.
const Exception* longestAt(const Letters& word, std::size_t at, std::u32string_view infinitive)
{
    const Exception* longest = nullptr;
    for (const auto& entry : beginningWith(word[at])) {
        if (standsAt(word, at, entry.letters) && (entry.verb.empty() || entry.verb == infinitive) &&
            (longest == nullptr || longest->letters.size() < entry.letters.size())) {
            longest = &entry;
        }
    }
    return longest;
}

void append(Letters& word, std::u32string_view notation)
{
    bool quoted = false;
    std::u32string ipa;
    for (const auto scalar : notation) {
        if (scalar != kSoundQuote) {
            (quoted ? ipa : word) += scalar;
            continue;
        }
        for (const auto sound : soundsOf(ipa)) {
            word += said(sound);
        }
        ipa.clear();
        quoted = !quoted;
    }
}

} // namespace

Letters respelled(const Letters& word, std::u32string_view infinitive)
{
    Letters result;
    result.reserve(word.size() + 4);
    for (std::size_t at = 0; at < word.size();) {
        if (const auto* entry = longestAt(word, at, infinitive)) {
            append(result, entry->said);
            at += withoutAnchors(entry->letters).size();
        } else {
            result += word[at++];
        }
    }
    return result;
}

} // namespace lumora::sound
