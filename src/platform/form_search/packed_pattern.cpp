// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/form_search/packed_pattern.h"

#include <sqlite3.h>

#include <algorithm>
#include <cstring>

namespace lumora::platform {

namespace {

constexpr std::uint32_t kReplacement = 0xFFFD;
constexpr std::uint32_t kBeyondUnicode = 0x110000;

constexpr bool isContinuation(unsigned char byte)
{
    return (byte & 0xC0U) == 0x80U;
}

/// The payload of a leading byte; SQLite takes every byte from 0xC0 for one.
constexpr std::uint32_t payload(unsigned char lead)
{
    unsigned char ones = 0x80;
    std::uint32_t rest = lead;
    while ((rest & ones) != 0) {
        rest ^= ones;
        ones >>= 1U;
    }
    return rest;
}

constexpr char folded(char byte)
{
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
}

constexpr bool isAscii(char byte)
{
    return static_cast<unsigned char>(byte) < 0x80U;
}

/// Whether the text goes on with these folded bytes.
bool startsWith(const char* text, std::string_view bytes)
{
    // The text's NUL differs from each of them.
    return std::all_of(bytes.begin(), bytes.end(),
                       [&text](char byte) { return folded(*text++) == byte; });
}

/// Takes one character off the front as SQLite does, which has its own reading
/// of bytes that are not UTF-8.
std::uint32_t takeCharacter(std::string_view& text)
{
    const auto lead = static_cast<unsigned char>(text.front());
    text.remove_prefix(1);
    if (lead < 0xC0U) {
        return lead;
    }
    std::uint32_t character = payload(lead);
    while (!text.empty() && isContinuation(static_cast<unsigned char>(text.front()))) {
        character = (character << 6U) + (static_cast<unsigned char>(text.front()) & 0x3FU);
        text.remove_prefix(1);
    }
    const bool impossible = character < 0x80U || (character & 0xFFFFF800U) == 0xD800U ||
                            (character & 0xFFFFFFFEU) == 0xFFFEU;
    return impossible ? kReplacement : character;
}

std::string utf8(std::uint32_t character)
{
    const auto byte = [](std::uint32_t value) { return static_cast<char>(value); };
    if (character >= kBeyondUnicode) {
        // No text holds it; nor this byte.
        return "\xFF";
    }
    std::string bytes;
    if (character < 0x80U) {
        return {byte(character)};
    }
    if (character < 0x800U) {
        bytes = {byte(0xC0U | (character >> 6U))};
    } else if (character < 0x10000U) {
        bytes = {byte(0xE0U | (character >> 12U)), byte(0x80U | ((character >> 6U) & 0x3FU))};
    } else {
        bytes = {byte(0xF0U | (character >> 18U)), byte(0x80U | ((character >> 12U) & 0x3FU)),
                 byte(0x80U | ((character >> 6U) & 0x3FU))};
    }
    bytes += byte(0x80U | (character & 0x3FU));
    return bytes;
}

using Lanes = std::uint8_t __attribute__((vector_size(16)));

Lanes lanesAt(const char* bytes)
{
    Lanes lanes;
    std::memcpy(&lanes, bytes, sizeof lanes);
    return lanes;
}

bool anyLane(Lanes lanes)
{
    std::array<std::uint64_t, 2> halves{};
    std::memcpy(halves.data(), &lanes, sizeof lanes);
    return (halves[0] | halves[1]) != 0;
}

void foldLanes(char* bytes)
{
    Lanes lanes = lanesAt(bytes);
    const auto isCapital = reinterpret_cast<Lanes>(lanes - std::uint8_t{'A'} < std::uint8_t{26});
    lanes += isCapital & std::uint8_t{'a' - 'A'};
    std::memcpy(bytes, &lanes, sizeof lanes);
}

/// Whether the needle begins at one of the first `places`. Sixteen more bytes
/// than the needle takes behind them can be read.
///
/// Compares the needle's first and last byte with sixteen places at once: memmem
/// is slow for the two or three bytes of a first key.
bool containsWithin(const char* text, std::size_t places, std::string_view needle)
{
    const std::size_t toLast = needle.size() - 1;
    const Lanes first = Lanes{} + static_cast<std::uint8_t>(needle.front());
    const Lanes last = Lanes{} + static_cast<std::uint8_t>(needle.back());
    for (const char* const end = text + places; text < end; text += sizeof(Lanes)) {
        const auto both =
            reinterpret_cast<Lanes>((lanesAt(text) == first) & (lanesAt(text + toLast) == last));
        if (anyLane(both)) {
            for (std::size_t lane = 0; lane < sizeof(Lanes); ++lane) {
                if (both[lane] != 0 &&
                    std::memcmp(text + lane, needle.data(), needle.size()) == 0) {
                    return true;
                }
            }
        }
    }
    return false;
}

constexpr std::size_t kPlaces = 128;
constexpr std::size_t kLongestNeedle = 32;

/// Looks for the needle in a text that is not folded. Neither may be longer than
/// the constants say.
bool containsFolded(std::string_view text, std::string_view needle)
{
    // Only the end is cleared: clearing all takes longer than the search.
    constexpr std::size_t kBeyond = kLongestNeedle + sizeof(Lanes);
    std::array<char, kPlaces + kBeyond> buffer; // NOLINT(cppcoreguidelines-pro-type-member-init)
    std::memcpy(buffer.data(), text.data(), text.size());
    std::memset(buffer.data() + text.size(), 0, kBeyond);
    for (std::size_t at = 0; at < text.size(); at += sizeof(Lanes)) {
        foldLanes(buffer.data() + at);
    }
    return containsWithin(buffer.data(), text.size(), needle);
}

bool contains(std::string_view text, std::string_view needle)
{
    if (needle.empty()) {
        return true;
    }
    // Whole blocks of places, then what is left at the end.
    const std::size_t beyond = needle.size() - 1 + sizeof(Lanes);
    const std::size_t places =
        text.size() < beyond
            ? 0
            : (text.size() - beyond) / sizeof(Lanes) * sizeof(Lanes) + sizeof(Lanes);
    if (containsWithin(text.data(), places, needle)) {
        return true;
    }
    text.remove_prefix(places);
    return memmem(text.data(), text.size(), needle.data(), needle.size()) != nullptr;
}

} // namespace

PackedPattern::PackedPattern(std::string_view pattern)
    : folded_(pattern.substr(0, pattern.find('\0')))
{
    std::transform(folded_.begin(), folded_.end(), folded_.begin(), folded);
    std::vector<Step> steps;
    // Whether "%" stands before a step, and at the end.
    std::vector<bool> gaps(1, false);
    for (std::string_view rest = folded_; !rest.empty();) {
        const std::uint32_t character = takeCharacter(rest);
        if (character == '%') {
            gaps.back() = true;
        } else if (character == '_') {
            steps.push_back({0, true});
            gaps.push_back(false);
        } else {
            for (const char byte : utf8(character)) {
                steps.push_back({static_cast<unsigned char>(byte), false});
                gaps.push_back(false);
            }
        }
    }
    shortestMatch_ = steps.size();
    chooseWay(steps, gaps);
    if (!std::all_of(folded_.begin(), folded_.end(), isAscii)) {
        single_ = Single::AskUnlessAscii;
    } else if (way_ == Way::Search && gaps.back()) {
        single_ = gaps.front() ? Single::Anywhere : Single::AtStart;
    }
}

void PackedPattern::chooseWay(const std::vector<Step>& steps, const std::vector<bool>& gaps)
{
    if (steps.empty() && gaps.back()) {
        way_ = Way::AnyText;
        return;
    }
    // The longest run of bytes without a wildcard, NUL standing for both ends.
    std::string run;
    const auto endRun = [&] {
        if (run.size() > needle_.size()) {
            needle_ = run;
        }
        run.clear();
    };
    if (!gaps.front()) {
        run += '\0';
    }
    for (std::size_t i = 0; i < steps.size(); ++i) {
        if (gaps[i]) {
            endRun();
        }
        if (steps[i].anyCharacter) {
            endRun();
        } else {
            run += static_cast<char>(steps[i].byte);
        }
    }
    if (gaps.back()) {
        endRun();
    } else {
        run += '\0';
    }
    endRun();

    const std::size_t anchors = (gaps.front() ? 0U : 1U) + (gaps.back() ? 0U : 1U);
    if (needle_.size() == steps.size() + anchors) {
        way_ = Way::Search;
    } else if (steps.size() < 64) {
        way_ = Way::Automaton;
        buildAutomaton(steps, gaps);
    }
}

// Bit n stands for "the first n steps are done". A byte moves a bit to the next
// step when it completes that step; "%" keeps a bit where it is, and so do the
// further bytes of a character that "_" has taken.
void PackedPattern::buildAutomaton(const std::vector<Step>& steps, const std::vector<bool>& gaps)
{
    lastStep_ = Steps{1} << steps.size();
    for (unsigned byte = 1; byte < completes_.size(); ++byte) {
        const bool continuation = isContinuation(static_cast<unsigned char>(byte));
        for (std::size_t i = 0; i <= steps.size(); ++i) {
            const Steps bit = Steps{1} << i;
            if (gaps[i]) {
                keeps_[byte] |= bit;
            }
            if (i == 0) {
                continue;
            }
            const Step& step = steps[i - 1];
            if (step.anyCharacter ? !continuation : step.byte == byte) {
                completes_[byte] |= bit;
            }
            if (step.anyCharacter && continuation) {
                keeps_[byte] |= bit;
            }
        }
    }
}

bool PackedPattern::runAutomaton(std::string_view packed) const
{
    Steps done = 0;
    for (const char byte : packed) {
        const auto index = static_cast<unsigned char>(byte);
        if (index == 0) {
            if ((done & lastStep_) != 0) {
                return true;
            }
            done = 1;
        } else {
            done = ((done << 1U) & completes_[index]) | (done & keeps_[index]);
        }
    }
    return false;
}

bool PackedPattern::confirm(std::string_view packed) const
{
    for (std::size_t begin = 1; begin < packed.size();) {
        const std::size_t end = packed.find('\0', begin);
        if (end - begin >= shortestMatch_ &&
            sqlite3_strlike(folded_.c_str(), packed.data() + begin, 0) == 0) {
            return true;
        }
        begin = end + 1;
    }
    return false;
}

bool PackedPattern::matchesAny(std::string_view packed) const
{
    if (way_ == Way::AnyText) {
        return packed.size() > 1;
    }
    if (!contains(packed, needle_)) {
        return false;
    }
    switch (way_) {
    case Way::Automaton:
        return runAutomaton(packed);
    case Way::Confirm:
        return confirm(packed);
    default:
        return true;
    }
}

bool PackedPattern::matches(std::string_view text) const
{
    if (way_ == Way::AnyText) {
        return true;
    }
    switch (single_) {
    case Single::AtStart:
        return startsWith(text.data(), std::string_view(needle_).substr(1));
    case Single::Anywhere:
        if (text.size() <= kPlaces && needle_.size() <= kLongestNeedle) {
            return containsFolded(text, needle_);
        }
        break;
    case Single::AskUnlessAscii:
        if (std::all_of(text.begin(), text.end(), isAscii)) {
            return false;
        }
        break;
    case Single::Ask:
        break;
    }
    return sqlite3_strlike(folded_.c_str(), text.data(), 0) == 0;
}

} // namespace lumora::platform
