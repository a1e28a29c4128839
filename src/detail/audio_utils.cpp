// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "detail/audio_utils.h"

#include "data/conjugation.h"
#include "detail/row_sounds.h"
#include "platform/storage/settings_store.h"
#include "settings/setting_keys.h"
#include "text/pronoun.h"
#include "text/text.h"

#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

namespace lumora::detail {

namespace {

constexpr std::string_view kLanguage = "fr";
constexpr float kLowVolume = 0.15F;
constexpr double kSecondsOfADay = 86400;

std::string spokenText(const data::Conjugation& form)
{
    if (form.pronoun.empty()) {
        return ' ' + form.verb;
    }
    return text::beforeForm(text::replaced(form.pronoun, "/", " ou ")) + form.verb;
}

/// As precise as stored: a float would be minutes off.
double numberOf(const platform::SettingValue& value)
{
    return std::visit(
        [](const auto& stored) {
            if constexpr (std::is_arithmetic_v<std::decay_t<decltype(stored)>>) {
                return static_cast<double>(stored);
            } else {
                return 0.0;
            }
        },
        value);
}

} // namespace

platform::Utterance AudioUtils::utteranceFor(const data::Conjugation& form, const RowSounds& sounds,
                                             platform::Voice voice,
                                             const platform::SettingsStore& settings)
{
    const float speed = settings.floatForKey(settings::kAudioSpeed);
    const float factor = speed > 0 ? speed : 1;
    auto text = spokenText(form);
    auto words = sounds.words(text, form);
    return {std::move(text), std::string{kLanguage}, platform::kDefaultSpeechRate * factor,
            std::move(words), voice};
}

bool AudioUtils::isVolumeWarningDue(float volume, double now,
                                    const platform::SettingsStore& settings)
{
    if (volume >= kLowVolume) {
        return false;
    }
    const auto last = settings.objectForKey(settings::kTimeAudioWarning);
    return !last || now - numberOf(*last) > kSecondsOfADay;
}

} // namespace lumora::detail
