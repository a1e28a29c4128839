// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "sound/grammar.h"

#include <string>
#include <string_view>
#include <vector>

namespace lumora::data {
struct Verb;
}
namespace lumora::platform {
class Bundle;
class SettingsStore;
} // namespace lumora::platform

namespace lumora::detail {

/// A tense that a verb lacks, wholly or in some persons.
struct MissingTense {
    std::string_view titleKey;
    /// The persons that the verb has in other tenses but not in this one; empty where
    /// it has no form of the tense.
    std::vector<sound::Person> persons;
};

/// What a verb has no forms for, as its rows show.
struct MissingForms {
    /// In the order of the moods.
    std::vector<MissingTense> tenses;
    /// The tenses in which it has at least one form.
    std::vector<std::string_view> usedTitleKeys;
    /// It has personal forms, but only those of il and ils.
    bool thirdPersonOnly = false;

    bool infinitiveOnly() const { return usedTitleKeys.empty(); }
};

/// For a verb whose forms are loaded.
MissingForms missingForms(const data::Verb& verb);

/// The missing forms for a person to read.
struct MissingWords {
    /// `tenses` names the tenses in use, which are fewer, instead of the missing ones.
    bool usedOnly = false;
    /// "Past historic, Present (nous, vous)"; empty for none.
    std::string tenses;
};
MissingWords inWords(const MissingForms& forms, const platform::Bundle& bundle,
                     const platform::SettingsStore& settings);

} // namespace lumora::detail
