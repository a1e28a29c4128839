// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lumora::lookup {

/// Words, and the verbs that they are forms of. Three hundred thousand words take
/// about 4 MB: they are kept in order, in blocks in which a word says only how it
/// differs from the one before it.
class WordIndex {
public:
    /// Takes words in any order, each as often as it likes, of at most 255 bytes;
    /// longer ones are left out.
    class Builder {
    public:
        void add(std::string_view word, std::uint32_t verb);
        WordIndex build() &&;

    private:
        struct Entry {
            std::uint32_t begin;
            std::uint32_t length;
            std::uint32_t verb;
        };
        std::string letters_;
        std::vector<Entry> entries_;
    };

    /// A part of the index, without a copy.
    struct Verbs {
        const std::uint32_t* first = nullptr;
        const std::uint32_t* last = nullptr;

        const std::uint32_t* begin() const { return first; }
        const std::uint32_t* end() const { return last; }
        bool empty() const { return first == last; }
    };

    /// The index as bytes that a file keeps, and made again of them, at a tenth of the
    /// cost of building it. None for bytes that are no index, or of a verb from
    /// `verbs` on.
    std::string packed() const;
    static std::optional<WordIndex> unpacked(std::string_view packed, std::uint32_t verbs);

    /// The verbs of the word, without a double; none for a word that is not here.
    Verbs find(std::string_view word) const;

    std::size_t size() const { return firstVerb_.empty() ? 0 : firstVerb_.size() - 1; }

    /// Calls `visit(number, word)` for each word in order.
    template <typename Visit>
    void forEach(const Visit& visit) const
    {
        std::string word;
        std::size_t at = 0;
        for (std::size_t number = 0; number < size(); ++number) {
            at = decode(at, word);
            visit(number, std::string_view{word});
        }
    }

    Verbs verbsOf(std::size_t number) const
    {
        return {verbs_.data() + firstVerb_[number], verbs_.data() + firstVerb_[number + 1]};
    }

private:
    static constexpr std::size_t kBlock = 16;

    /// Reads where the blocks of so many coded words begin; false where these are
    /// damaged.
    bool findBlocks(std::size_t count);
    std::size_t decode(std::size_t at, std::string& word) const;
    std::string_view headOf(std::size_t block) const;

    /// A byte for the letters that a word has in common with the one before it, a
    /// byte for how many follow, and these.
    std::string coded_;
    std::vector<std::uint32_t> blocks_;
    std::vector<std::uint32_t> firstVerb_;
    std::vector<std::uint32_t> verbs_;
};

} // namespace lumora::lookup
