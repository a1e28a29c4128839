// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lumora::platform {

/// A LIKE pattern made ready to be held against many packed texts, each
/// NUL text NUL text NUL in valid UTF-8 with ASCII's capitals folded.
///
/// Answers exactly as SQLite's LIKE would for one of the texts: "%" and "_" are
/// wildcards, only ASCII ignores case, the pattern ends at its first NUL and may
/// be any bytes.
class PackedPattern {
public:
    explicit PackedPattern(std::string_view pattern);

    /// Whether any of the texts matches.
    bool matchesAny(std::string_view packed) const;

    /// Whether this text matches, which is neither packed nor folded, holds any
    /// bytes and ends where a NUL stands behind it.
    bool matches(std::string_view text) const;

private:
    /// Steps on the way through a pattern, one bit each.
    using Steps = std::uint64_t;

    enum class Way {
        AnyText,   ///< nothing but "%"
        Search,    ///< no wildcard inside: the bytes decide, with NUL as anchor
        Automaton, ///< all steps at once, one bit each
        Confirm,   ///< too long for that: SQLite is asked, text by text
    };

    /// One character of the pattern, or one byte of it.
    struct Step {
        unsigned char byte = 0;
        bool anyCharacter = false;
    };

    void chooseWay(const std::vector<Step>& steps, const std::vector<bool>& gaps);
    void buildAutomaton(const std::vector<Step>& steps, const std::vector<bool>& gaps);
    bool runAutomaton(std::string_view packed) const;
    bool confirm(std::string_view packed) const;

    /// How a single text is looked at, which may hold any bytes. ASCII stands for
    /// itself among them; of other characters SQLite has its own reading.
    enum class Single {
        AtStart,        ///< the needle's place
        Anywhere,       ///< the needle's place
        AskUnlessAscii, ///< only other characters match: else SQLite is asked
        Ask,            ///< SQLite is asked
    };

    Way way_ = Way::Confirm;
    Single single_ = Single::Ask;
    std::string folded_;
    /// Bytes that stand in every packed text with a match.
    std::string needle_;
    std::size_t shortestMatch_ = 0;
    Steps lastStep_ = 0;
    /// The steps that a byte may complete, and those it leaves as they are.
    std::array<Steps, 256> completes_{};
    std::array<Steps, 256> keeps_{};
};

} // namespace lumora::platform
