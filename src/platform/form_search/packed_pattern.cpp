// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/form_search/packed_pattern.h"

#include <sqlite3.h>

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace lumora::platform {

namespace {

constexpr std::string_view kEnd{"\0", 1};

/// Whether equal characters are equal bytes to LIKE: so it is for ASCII and for
/// characters of two bytes, which all letters of French are. It has its own
/// reading of some longer ones, and of bytes that are not UTF-8.
bool isComparedByBytes(std::string_view text)
{
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (byte >= 0x80U) {
            const bool isPair = byte >= 0xC2U && byte <= 0xDFU && ++i < text.size() &&
                                (static_cast<unsigned char>(text[i]) & 0xC0U) == 0x80U;
            if (!isPair) {
                return false;
            }
        }
    }
    return true;
}

using Lanes = std::uint8_t __attribute__((vector_size(16)));
using Halves = std::uint64_t __attribute__((vector_size(16)));

Lanes lanesAt(const char* bytes)
{
    Lanes lanes;
    std::memcpy(&lanes, bytes, sizeof lanes);
    return lanes;
}

/// Where the needle, which is not empty, begins at `from` or behind it.
///
/// Compares the needle's first and last byte with sixteen places at once: memmem
/// is slow for the two or three bytes of a first key.
std::size_t find(std::string_view text, std::string_view needle, std::size_t from)
{
    const std::size_t toLast = needle.size() - 1;
    const Lanes first = Lanes{} + static_cast<std::uint8_t>(needle.front());
    const Lanes last = Lanes{} + static_cast<std::uint8_t>(needle.back());
    for (; from + toLast + sizeof(Lanes) <= text.size(); from += sizeof(Lanes)) {
        const char* const place = text.data() + from;
        const auto both =
            reinterpret_cast<Lanes>((lanesAt(place) == first) & (lanesAt(place + toLast) == last));
        const auto halves = reinterpret_cast<Halves>(both);
        if ((halves[0] | halves[1]) == 0) {
            continue;
        }
        for (std::size_t lane = 0; lane < sizeof(Lanes); ++lane) {
            if (both[lane] != 0 && std::memcmp(place + lane, needle.data(), needle.size()) == 0) {
                return from + lane;
            }
        }
    }
    return text.find(needle, from);
}

} // namespace

PackedPattern::PackedPattern(std::string_view pattern)
    : folded_(pattern.substr(0, pattern.find('\0'))), needle_(kEnd)
{
    for (char& byte : folded_) {
        byte = static_cast<char>(byte >= 'A' && byte <= 'Z' ? byte - 'A' + 'a' : byte);
    }
    if (!isComparedByBytes(folded_)) {
        return;
    }
    // The longest run of bytes without a wildcard; NUL stands for both ends.
    const std::string whole = '\0' + folded_ + '\0';
    std::size_t runs = 0;
    for (std::size_t begin = 0; begin < whole.size();) {
        const std::size_t end = std::min(whole.find_first_of("%_", begin), whole.size());
        const std::string run = whole.substr(begin, end - begin);
        begin = end + 1;
        // An end alone is what an outer "%" leaves.
        if (!run.empty() && run != kEnd && (runs++ == 0 || run.size() > needle_.size())) {
            needle_ = run;
        }
    }
    needleDecides_ = runs == 1 && folded_.find('_') == std::string::npos;
}

bool PackedPattern::matchesAny(std::string_view packed) const
{
    std::size_t at = find(packed, needle_, 0);
    if (needleDecides_) {
        return at != std::string::npos;
    }
    while (at != std::string::npos) {
        // A needle that begins with NUL stands before its text.
        const std::size_t begin = packed.rfind('\0', at) + 1;
        if (begin == packed.size()) {
            break;
        }
        if (sqlite3_strlike(folded_.c_str(), packed.data() + begin, 0) == 0) {
            return true;
        }
        at = find(packed, needle_, packed.find('\0', begin));
    }
    return false;
}

} // namespace lumora::platform
