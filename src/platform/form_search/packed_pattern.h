// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>

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

private:
    std::string folded_;
    /// Bytes that every matching text holds, the NULs around it included.
    std::string needle_;
    /// Whether all texts with the needle match.
    bool needleDecides_ = false;
};

} // namespace lumora::platform
