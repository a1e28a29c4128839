// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/machine/speech_synthesizer.h"

namespace lumora::data {
struct Conjugation;
}
namespace lumora::platform {
class SettingsStore;
}

namespace lumora::detail {

class RowSounds;

/// What pronunciation says and how it looks, apart from any screen.
class AudioUtils {
public:
    AudioUtils() = delete;

    /// A form with its pronoun, in French, at the rate of the settings.
    static platform::Utterance utteranceFor(const data::Conjugation& form, const RowSounds& sounds,
                                            platform::Voice voice,
                                            const platform::SettingsStore& settings);

    /// Whether a low volume is worth a warning at `now`, in seconds since 1970:
    /// once a day is enough.
    static bool isVolumeWarningDue(float volume, double now,
                                   const platform::SettingsStore& settings);
};

} // namespace lumora::detail
