// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "detail/ce_round_progress_view.h"
#include "platform/machine/speech_synthesizer.h"

#include <cstddef>
#include <deque>
#include <functional>
#include <iosfwd>
#include <memory>
#include <string>

namespace lumora::platform {
class AudioSession;
}

namespace lumora::detail {

/// What is spoken of a row, and its ring.
struct SpokenRow {
    platform::Utterance utterance;
    std::shared_ptr<CERoundProgressView> indicator;
};

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

    /// Called when another row is spoken, or none any more.
    std::function<void()> changed;

    /// Speaks the rows one after another, and cuts off what is being spoken.
    /// Speaks also where the audio session cannot be had; the console is told.
    void play(std::deque<SpokenRow> rows, platform::SpeechSynthesizerDelegate& delegate);
    /// The rows that were to follow are not spoken either.
    void stop();
    /// What is being spoken; empty for nothing.
    const std::string& spokenText() const { return spokenText_; }

    void willSpeakRange(std::size_t location, const platform::Utterance& utterance);
    /// Goes on with the next row.
    void didFinish(platform::SpeechSynthesizerDelegate& delegate);

private:
    platform::SpeechSynthesizer& speechSynthesizer();
    void prepareAudioSession();
    void playNext(platform::SpeechSynthesizerDelegate& delegate);
    void endRow();
    void tellChange() const;

    platform::SpeechSynthesizerFactory& speech_;
    platform::AudioSession& audioSession_;
    std::ostream& console_;
    std::deque<SpokenRow> rest_;
    std::string spokenText_;
    /// Made on first use.
    std::unique_ptr<platform::SpeechSynthesizer> speechSynthesizer_;
};

} // namespace lumora::detail
