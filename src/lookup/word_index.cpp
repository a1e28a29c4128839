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

std::size_t byteAt(std::string_view text, std::size_t at)
{
    return static_cast<unsigned char>(text[at]);
}

/// Seven bits a byte, the least first; all but the last have the eighth set.
void append(std::string& bytes, std::uint32_t number)
{
    constexpr std::uint32_t kMore = 0x80;

    for (; number >= kMore; number >>= 7U) {
        bytes += static_cast<char>(number | kMore);
    }
    bytes += static_cast<char>(number);
}

/// Takes numbers and bytes from the front of what `append` wrote.
class PackedReader {
public:
    explicit PackedReader(std::string_view bytes) : bytes_{bytes} {}

    /// 0 where there is no number.
    std::uint32_t number()
    {
        std::uint32_t result = 0;
        for (unsigned shift = 0; shift < 32; shift += 7) {
            if (bytes_.empty()) {
                break;
            }
            const auto byte = static_cast<std::uint32_t>(byteAt(bytes_, 0));
            bytes_.remove_prefix(1);
            result |= (byte & 0x7FU) << shift;
            if (byte < 0x80) {
                return result;
            }
        }
        good_ = false;
        return 0;
    }

    std::string_view take(std::size_t count)
    {
        good_ = good_ && count <= bytes_.size();
        const auto taken = bytes_.substr(0, good_ ? count : 0);
        bytes_.remove_prefix(taken.size());
        return taken;
    }

    bool good() const { return good_; }
    bool atEnd() const { return bytes_.empty(); }
    std::size_t left() const { return bytes_.size(); }

private:
    std::string_view bytes_;
    bool good_ = true;
};

/// The first byte of packed indexes; another one is of a later program.
constexpr std::uint32_t kVersion = 1;

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

std::string WordIndex::packed() const
{
    std::string bytes;
    append(bytes, kVersion);
    append(bytes, static_cast<std::uint32_t>(size()));
    append(bytes, static_cast<std::uint32_t>(coded_.size()));
    bytes += coded_;
    // Words beside each other are mostly of one verb: the difference is small.
    std::uint32_t last = 0;
    for (std::size_t number = 0; number < size(); ++number) {
        const auto verbs = verbsOf(number);
        append(bytes, static_cast<std::uint32_t>(verbs.last - verbs.first));
        for (const auto verb : verbs) {
            append(bytes, verb >= last ? (verb - last) << 1U : ((last - verb) << 1U) - 1);
            last = verb;
        }
    }
    return bytes;
}

std::optional<WordIndex> WordIndex::unpacked(std::string_view packed, std::uint32_t verbs)
{
    PackedReader reader{packed};
    if (reader.number() != kVersion) {
        return std::nullopt;
    }
    const std::size_t count = reader.number();
    WordIndex index;
    index.coded_ = reader.take(reader.number());
    // A word takes at least two bytes more.
    if (!reader.good() || count > reader.left() || !index.findBlocks(count)) {
        return std::nullopt;
    }
    index.firstVerb_.reserve(count + 1);
    index.verbs_.reserve(count + count / 4);
    std::uint32_t last = 0;
    for (std::size_t number = 0; number < count && reader.good(); ++number) {
        index.firstVerb_.push_back(static_cast<std::uint32_t>(index.verbs_.size()));
        for (auto left = reader.number(); left > 0; --left) {
            const auto step = reader.number();
            last += (step & 1U) == 0 ? step >> 1U : 0U - ((step + 1) >> 1U);
            if (!reader.good() || last >= verbs) {
                return std::nullopt;
            }
            index.verbs_.push_back(last);
        }
    }
    index.firstVerb_.push_back(static_cast<std::uint32_t>(index.verbs_.size()));
    index.verbs_.shrink_to_fit();
    if (!reader.good() || !reader.atEnd()) {
        return std::nullopt;
    }
    return index;
}

bool WordIndex::findBlocks(std::size_t count)
{
    std::size_t at = 0;
    std::size_t length = 0;
    for (std::size_t number = 0; number < count; ++number) {
        const bool head = number % kBlock == 0;
        if (coded_.size() - at < 2 || byteAt(coded_, at) > (head ? 0 : length)) {
            return false;
        }
        if (head) {
            blocks_.push_back(static_cast<std::uint32_t>(at));
        }
        length = byteAt(coded_, at) + byteAt(coded_, at + 1);
        at += 2 + byteAt(coded_, at + 1);
        if (at > coded_.size()) {
            return false;
        }
    }
    return at == coded_.size();
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
