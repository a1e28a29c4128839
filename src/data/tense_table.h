// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/verb.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace lumora::platform {
class Bundle;
class SettingsStore;
} // namespace lumora::platform

namespace lumora::data {

/// The segments of the mood control, in its order.
enum class Mood { Indicative, Subjunctive, Conditional, Other };
inline constexpr int kMoodCount = 4;

/// A tense as the database names it, and the verb's list of its forms.
struct TenseField {
    std::string_view identifier;
    ConjugationList Verb::*forms;
};

/// A tense as the grid shows it: under a mood, with a title.
struct TenseBlock {
    TenseField tense;
    std::string_view titleKey;
};

/// All eighteen tenses, by identifier.
extern const std::array<TenseField, 18> kTenses;

/// A form of a verb: a tense as the database names it, and the row within the verb.
struct FormPlace {
    std::string tense;
    std::int64_t order = 0;

    bool operator==(const FormPlace&) const = default;
};

/// Where a tense stands: the segment of its mood, and its number among the blocks.
struct TensePosition {
    int segment = 0;
    std::size_t block = 0;
};

/// None for a tense that no mood shows, which is the infinitive.
std::optional<TensePosition> positionOfTense(std::string_view identifier);

/// The blocks of a mood in their order; none for a segment that is not a mood.
/// The infinitive has no block.
std::span<const TenseBlock> blocksOfSegment(int segment);

/// The block of a mood at a position from 0; null where there is none.
const TenseBlock* blockAt(int segment, int position);

/// "type.indicative.full" and so on, in segment order.
extern const std::array<std::string_view, kMoodCount> kMoodTitleKeys;

/// The mood's name in the "conjugation_tab" event; "CONJUGATIONS_NA" for a
/// segment that is not a mood.
std::string_view analyticsNameOfSegment(int segment);

/// The tense's title: the French name when "ShowTranslated" reads true, else
/// the translated one.
std::string tenseTitle(std::string_view titleKey, const platform::Bundle& bundle,
                       const platform::SettingsStore& settings);

} // namespace lumora::data
