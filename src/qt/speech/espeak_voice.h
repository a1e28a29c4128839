// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/base/error.h"
#include "platform/machine/speech_synthesizer.h"
#include "qt/speech/speech.h"

#include <atomic>

namespace lumora::qt {

/// Turns utterances into sound with the eSpeak NG library.
///
/// Made on the GUI thread, before other threads look at the locale, which the
/// library sets; speaks on any one. The library has one state for the whole
/// process and keeps it.
class EspeakVoice {
public:
    EspeakVoice();

    /// Half the default rate takes twice as long, and so on, down to a tenth
    /// and up to the engine's fastest. Ends early with an error once
    /// `cancelled` is true.
    platform::Result<Speech> synthesize(const platform::Utterance& utterance,
                                        const std::atomic<bool>& cancelled) const;

private:
    /// In a second; negative when the engine has no data to work with.
    int sampleRate_;
};

} // namespace lumora::qt
