// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/word_index.h"

#include <algorithm>
#include <tuple>

namespace lumora::lookup {

namespace {

constexpr std::size_t kLongest = 255;

std::size_t commonLetters(std::string_view left, std::string_view right)
{
    const auto shorter = std::min(left.size(), right.size());
    const auto* const differs =
        std::mismatch(left.begin(), left.begin() + shorter, right.begin()).first;
    return static_cast<std::size_t>(differs - left.begin());
}

std::size_t byteAt(const std::string& text, std::size_t at)
{
    return static_cast<unsigned char>(text[at]);
}

} // namespace

void WordIndex::Builder::add(std::string_view word, std::uint32_t verb)
{
    if (word.empty() || word.size() > kLongest) {
        return;
    }
    entries_.push_back({static_cast<std::uint32_t>(letters_.size()),
                        static_cast<std::uint32_t>(word.size()), verb});
    letters_ += word;
}

WordIndex WordIndex::Builder::build() &&
{
    const auto wordOf = [&](const Entry& entry) {
        return std::string_view{letters_}.substr(entry.begin, entry.length);
    };
    std::sort(entries_.begin(), entries_.end(), [&](const Entry& left, const Entry& right) {
        const int order = wordOf(left).compare(wordOf(right));
        return order != 0 ? order < 0 : left.verb < right.verb;
    });
    WordIndex index;
    std::string_view last;
    for (const auto& entry : entries_) {
        const auto word = wordOf(entry);
        if (index.firstVerb_.empty() || word != last) {
            const bool head = index.firstVerb_.size() % kBlock == 0;
            if (head) {
                index.blocks_.push_back(static_cast<std::uint32_t>(index.coded_.size()));
            }
            const auto common = head ? 0 : commonLetters(last, word);
            index.coded_ += static_cast<char>(common);
            index.coded_ += static_cast<char>(word.size() - common);
            index.coded_ += word.substr(common);
            index.firstVerb_.push_back(static_cast<std::uint32_t>(index.verbs_.size()));
            last = word;
        } else if (index.verbs_.back() == entry.verb) {
            continue;
        }
        index.verbs_.push_back(entry.verb);
    }
    index.firstVerb_.push_back(static_cast<std::uint32_t>(index.verbs_.size()));
    index.coded_.shrink_to_fit();
    index.verbs_.shrink_to_fit();
    index.firstVerb_.shrink_to_fit();
    return index;
}

std::size_t WordIndex::decode(std::size_t at, std::string& word) const
{
    const auto length = byteAt(coded_, at + 1);
    word.resize(byteAt(coded_, at));
    word.append(coded_, at + 2, length);
    return at + 2 + length;
}

std::string_view WordIndex::headOf(std::size_t block) const
{
    const std::size_t at = blocks_[block];
    return std::string_view{coded_}.substr(at + 2, byteAt(coded_, at + 1));
}

WordIndex::Verbs WordIndex::find(std::string_view word) const
{
    std::size_t low = 0;
    std::size_t high = blocks_.size();
    while (low < high) {
        const auto middle = (low + high) / 2;
        if (headOf(middle) <= word) {
            low = middle + 1;
        } else {
            high = middle;
        }
    }
    if (low == 0) {
        return {};
    }
    std::size_t at = blocks_[low - 1];
    const auto begin = (low - 1) * kBlock;
    std::string found;
    for (auto number = begin; number < std::min(begin + kBlock, size()); ++number) {
        at = decode(at, found);
        if (found == word) {
            return verbsOf(number);
        }
        if (found > word) {
            break;
        }
    }
    return {};
}

} // namespace lumora::lookup
