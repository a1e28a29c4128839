// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string_view>

/// Every key of the settings store. The mixed styles are what stored files
/// hold, so they stay.
namespace lumora::settings {

inline constexpr std::string_view kIncludeEnglish = "IncludeEnglish";
/// "S": from the start of the word; anything else: anywhere ("W").
inline constexpr std::string_view kSearchFrom = "SearchFrom";
inline constexpr std::string_view kSortByLang = "SortByLang";
inline constexpr std::string_view kIncludeConjugations = "IncludeConjugations";
/// Written at the first start and read by nothing; not kIncludeConjugations.
inline constexpr std::string_view kSearchConjugations = "SearchConjugations";
/// True shows the French tense names; the name reads the other way round.
inline constexpr std::string_view kShowTranslated = "ShowTranslated";
/// A two-letter code; missing means by the device's language.
inline constexpr std::string_view kTranslationLanguage = "translation_language";
inline constexpr std::string_view kUseHistory = "UseHistory";
/// Factor on the speech rate; 0 or less means 1.
inline constexpr std::string_view kAudioSpeed = "audio_speed";
inline constexpr std::string_view kAnalyticsCollectionEnabled = "analytics_collection_enabled";

inline constexpr std::string_view kInstalledVersion = "installed_version";
inline constexpr std::string_view kNumberOfVerbsViewed = "number_of_verbs_viewed";
inline constexpr std::string_view kAskedForReview = "asked_for_review";
/// Seconds since 1970.
inline constexpr std::string_view kTimeAudioWarning = "time_audio_warning";

} // namespace lumora::settings
