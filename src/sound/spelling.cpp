// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sound/spelling.h"

#include "sound/spelling_rules.h"

#include <cstddef>
#include <string_view>

namespace lumora::sound {

namespace {

constexpr char32_t kWordStart = U'#';

/// Reads a word from left to right.
class Reading {
public:
    explicit Reading(const Letters& word) : word_(word) { sounds_.reserve(word.size() + 4); }

    Sounds sounds()
    {
        while (at_ < word_.size()) {
            step();
        }
        return std::move(sounds_);
    }

private:
    /// The letter at an index that may lie outside the word.
    char32_t letter(std::size_t index) const { return index < word_.size() ? word_[index] : 0; }

    /// Vowels, and the i of -ions and -iez, which opens a syllable as they do.
    bool beginsSyllable(std::size_t index) const
    {
        return index < word_.size() && (isVowelLetter(word_[index]) || word_[index] == said(U'j'));
    }

    void step()
    {
        const auto next = word_[at_];
        if (next == kTail) {
            ++at_;
            return;
        }
        if (isSaid(next)) {
            sounds_ += soundOf(next);
            ++at_;
            return;
        }
        for (const auto& rule : rulesFor(next)) {
            if (matches(rule)) {
                sounds_ += rule.sounds;
                at_ += rule.letters.size();
                return;
            }
        }
        if (next == U'e') {
            sounds_ += plainE();
        }
        ++at_;
    }

    bool matches(const SpellingRule& rule) const
    {
        return word_.compare(at_, rule.letters.size(), rule.letters) == 0 && endsWith(rule.left) &&
               continues(at_ + rule.letters.size(), rule.right);
    }

    bool endsWith(std::u32string_view left) const
    {
        std::size_t index = at_;
        for (auto i = left.size(); i-- > 0;) {
            if (left[i] == kWordStart) {
                return index == 0;
            }
            if (index == 0 || !isOfClass(index - 1, left[i])) {
                return false;
            }
            --index;
        }
        return true;
    }

    bool continues(std::size_t index, std::u32string_view right) const
    {
        for (std::size_t i = 0; i < right.size(); ++i) {
            if (!isOfClass(index + i, right[i])) {
                return false;
            }
        }
        return true;
    }

    bool isOfClass(std::size_t index, char32_t wanted) const
    {
        const auto found = letter(index);
        const bool atEnd = found == 0 || found == kTail;
        switch (wanted) {
        case U'$':
            return atEnd;
        case U'V':
            return beginsSyllable(index);
        case U'C':
            return !atEnd && !beginsSyllable(index);
        case U'F':
            return isOneOf(soundOf(found), U"eéèêëiîïyjɛ");
        case U'B':
            return isOneOf(found, U"aâàoôuûù") || (isSaid(found) && isVowelLetter(found));
        case U'N':
            return atEnd || (!beginsSyllable(index) && !isOneOf(found, U"nmh"));
        case U'P':
            return atEnd || isOneOf(found, U"pb");
        case U'S':
            return isOneOf(found, U"sx");
        case U'L':
            return isOneOf(found, U"lr");
        default:
            return found == wanted;
        }
    }

    /// How many letters the consonant at the index has, as one sound.
    std::size_t unitLength(std::size_t index) const
    {
        const auto first = letter(index);
        const auto second = letter(index + 1);
        const bool pair = (second == U'h' && isOneOf(first, U"cpstrgk")) ||
                          (second == U'u' && isOneOf(first, U"qg") && beginsSyllable(index + 2)) ||
                          (second == U'n' && first == U'g');
        return pair ? 2 : 1;
    }

    bool opensCluster(std::size_t index) const
    {
        return isOneOf(letter(index), U"pbtdcgfvk") || unitLength(index) == 2;
    }

    /// An e without accent that no rule has taken.
    std::u32string_view plainE() const
    {
        const auto first = at_ + 1;
        if (first == word_.size()) {
            return U"";
        }
        if (beginsSyllable(first)) {
            return U"e";
        }
        auto index = first + unitLength(first);
        if (letter(first) == U'x') {
            return U"ɛ";
        }
        if (beginsSyllable(index)) {
            return U"ə";
        }
        if (letter(index) == letter(first)) {
            return U"E";
        }
        if (opensCluster(first) && isOneOf(letter(index), U"lr") && beginsSyllable(index + 1)) {
            return U"ə";
        }
        return U"ɛ";
    }

    const Letters& word_;
    std::size_t at_ = 0;
    Sounds sounds_;
};

} // namespace

Sounds spelledSounds(const Letters& word)
{
    return Reading(word).sounds();
}

} // namespace lumora::sound
