// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "detail/ce_round_progress_view.h"
#include "platform/machine/speech_synthesizer.h"

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <memory>

namespace lumora::platform {
class AudioSession;
}

namespace lumora::detail {

/// Speaks one row at a time and moves the ring of its row with the voice.
///
/// The screen is the synthesizer's delegate and hands its calls on. GUI thread
/// only; what the constructor takes must outlive the object.
class Playback {
public:
    Playback(platform::SpeechSynthesizerFactory& speech, platform::AudioSession& audioSession,
             std::ostream& console);

    /// Invalidates a timer. Nothing is ever scheduled: the speech alone moves
    /// the ring.
    std::function<void()> audioTimer;
    /// The ring of the row spoken last.
    std::shared_ptr<CERoundProgressView> currentAudioProgress;

    /// Cuts off what is being spoken. Speaks also where the audio session
    /// cannot be had; the console is told.
    void play(const platform::Utterance& utterance, std::shared_ptr<CERoundProgressView> indicator,
              platform::SpeechSynthesizerDelegate& delegate);
    void stop();

    void willSpeakRange(std::size_t location, const platform::Utterance& utterance);
    void didFinish();

private:
    platform::SpeechSynthesizer& speechSynthesizer();
    void prepareAudioSession();

    platform::SpeechSynthesizerFactory& speech_;
    platform::AudioSession& audioSession_;
    std::ostream& console_;
    /// Made on first use.
    std::unique_ptr<platform::SpeechSynthesizer> speechSynthesizer_;
};

} // namespace lumora::detail
