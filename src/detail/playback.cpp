// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "detail/playback.h"

#include "platform/machine/audio_session.h"
#include "text/text.h"

#include <algorithm>
#include <ostream>
#include <utility>

namespace lumora::detail {

namespace {

/// The ring's share at the first word, so that it is seen from then on.
constexpr float kLeastProgress = 0.1F;
/// The ring runs ahead of the voice, so that it is full when the last word begins.
constexpr float kLead = 1.1F;

/// How full the ring is when the word at `location` begins.
float progressAt(std::size_t location, const platform::Utterance& utterance)
{
    const auto count = std::max<std::size_t>(text::characterCount(utterance.text), 1);
    return std::max(kLeastProgress,
                    static_cast<float>(location) / static_cast<float>(count) * kLead);
}

} // namespace

Playback::Playback(platform::SpeechSynthesizerFactory& speech, platform::AudioSession& audioSession,
                   std::ostream& console)
    : speech_{speech}, audioSession_{audioSession}, console_{console}
{}

void Playback::play(std::deque<SpokenRow> rows, platform::SpeechSynthesizerDelegate& delegate)
{
    if (speechSynthesizer().isSpeaking()) {
        stop();
    }
    rest_ = std::move(rows);
    playNext(delegate);
}

void Playback::playNext(platform::SpeechSynthesizerDelegate& delegate)
{
    if (!rest_.empty()) {
        auto row = std::move(rest_.front());
        rest_.pop_front();
        currentAudioProgress = std::move(row.indicator);
        spokenText_ = row.utterance.text;
        prepareAudioSession();
        speechSynthesizer().setDelegate(&delegate);
        speechSynthesizer().speak(row.utterance);
    }
    tellChange();
}

platform::SpeechSynthesizer& Playback::speechSynthesizer()
{
    if (!speechSynthesizer_) {
        speechSynthesizer_ = speech_.makeSpeechSynthesizer();
    }
    return *speechSynthesizer_;
}

void Playback::prepareAudioSession()
{
    const auto ready =
        audioSession_.setCategoryPlayback().and_then([&] { return audioSession_.activate(); });
    if (!ready) {
        console_ << "Error: Could not set audio category: " << ready.error().message
                 << ", {code = " << ready.error().code << '}' << std::endl;
    }
}

void Playback::stop()
{
    rest_.clear();
    endRow();
    tellChange();
}

void Playback::endRow()
{
    speechSynthesizer().stopSpeaking();
    if (currentAudioProgress) {
        currentAudioProgress->setProgress(0);
    }
    if (const auto invalidate = std::exchange(audioTimer, nullptr)) {
        invalidate();
    }
    spokenText_.clear();
}

void Playback::tellChange() const
{
    if (changed) {
        changed();
    }
}

void Playback::willSpeakRange(std::size_t location, const platform::Utterance& utterance)
{
    if (currentAudioProgress) {
        currentAudioProgress->setProgress(progressAt(location, utterance), false);
    }
}

void Playback::didFinish(platform::SpeechSynthesizerDelegate& delegate)
{
    if (currentAudioProgress) {
        currentAudioProgress->setProgress(1);
    }
    endRow();
    playNext(delegate);
}

} // namespace lumora::detail
