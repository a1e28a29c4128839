// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/speech/espeak_voice.h"

#include "qt/speech/spoken_text.h"
#include "qt/speech/time_stretch.h"

#include <espeak-ng/speak_lib.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <mutex>
#include <string>
#include <utility>

namespace lumora::qt {

namespace {

/// Slower is no speech any more, and would take far too many samples.
constexpr float kSlowestRate = platform::kDefaultSpeechRate / 10;
constexpr float kSlowestOfEngine = espeakRATE_MINIMUM;
constexpr float kFastestRate = espeakRATE_MAXIMUM;
constexpr auto kUsualRate = static_cast<int>(platform::kDefaultSpeechRate);

/// The engine's variants of a voice.
constexpr const char* kWoman = "+f2";
constexpr const char* kMan = "+m7";
/// The range of the pitch, up to 100; the engine's default of 50 sounds monotonous.
constexpr int kLivelyRange = 85;

std::mutex& libraryLock()
{
    static std::mutex lock;
    return lock;
}

int initializeLibrary()
{
    static const int sampleRate =
        espeak_Initialize(AUDIO_OUTPUT_SYNCHRONOUS, 0, nullptr, espeakINITIALIZE_DONT_EXIT);
    return sampleRate;
}

/// What the library's callback fills.
struct Recording {
    const SpokenText& text;
    const std::atomic<bool>& cancelled;
    Speech speech;
};

void recordEvent(Recording& recording, const espeak_EVENT& event)
{
    // Clauses end with an empty word, which is not one.
    if (event.type != espeakEVENT_WORD || event.length <= 0 || event.text_position <= 0) {
        return;
    }
    const auto [location, length] = recording.text.writtenRange(
        static_cast<std::size_t>(event.text_position - 1), static_cast<std::size_t>(event.length));
    recording.speech.words.push_back(
        {location, length, static_cast<std::size_t>(std::max(event.sample, 0))});
}

int onSamples(short* samples, int count, espeak_EVENT* events)
{
    auto& recording = *static_cast<Recording*>(events->user_data);
    for (const auto* event = events; event->type != espeakEVENT_LIST_TERMINATED; ++event) {
        recordEvent(recording, *event);
    }
    if (samples != nullptr && count > 0) {
        recording.speech.samples.insert(recording.speech.samples.end(), samples, samples + count);
    }
    return recording.cancelled ? 1 : 0;
}

platform::Result<Speech> speakAtRate(const SpokenText& text, int wordsAMinute, int sampleRate,
                                     const std::atomic<bool>& cancelled)
{
    Recording recording{text, cancelled, {sampleRate, {}, {}}};
    espeak_SetSynthCallback(&onSamples);
    espeak_SetParameter(espeakRATE, wordsAMinute, 0);
    const unsigned flags = espeakCHARS_UTF8 | (text.hasPhonemes() ? espeakPHONEMES : 0U);
    const auto done = espeak_Synth(text.text().c_str(), text.text().size() + 1, 0, POS_CHARACTER, 0,
                                   flags, nullptr, &recording);
    if (cancelled) {
        return tl::unexpected{platform::Error{"Cancelled", 0}};
    }
    if (done != EE_OK) {
        return tl::unexpected{platform::Error{"The engine could not speak", done}};
    }
    return std::move(recording.speech);
}

void stretch(Speech& speech, std::size_t length)
{
    const auto before = speech.samples.size();
    speech.samples = stretched(speech.samples, speech.sampleRate, length);
    for (auto& word : speech.words) {
        word.sample = before == 0 ? 0 : word.sample * speech.samples.size() / before;
    }
}

} // namespace

EspeakVoice::EspeakVoice() : sampleRate_{initializeLibrary()} {}

platform::Result<Speech> EspeakVoice::synthesize(const platform::Utterance& utterance,
                                                 const std::atomic<bool>& cancelled) const
{
    if (sampleRate_ <= 0) {
        return tl::unexpected{platform::Error{"The engine's data are missing", sampleRate_}};
    }
    const std::scoped_lock lock{libraryLock()};
    const auto* const variant = utterance.voice == platform::Voice::Man ? kMan : kWoman;
    if (const auto chosen = espeak_SetVoiceByName((utterance.language + variant).c_str());
        chosen != EE_OK) {
        return tl::unexpected{platform::Error{"No voice speaks " + utterance.language, chosen}};
    }
    espeak_SetParameter(espeakRANGE, kLivelyRange, 0);
    const SpokenText text{utterance};
    const float rate = std::clamp(utterance.rate, kSlowestRate, kFastestRate);
    const auto nearest = static_cast<int>(std::lround(std::max(rate, kSlowestOfEngine)));
    auto speech = speakAtRate(text, nearest, sampleRate_, cancelled);
    if (!speech || nearest == kUsualRate) {
        return speech;
    }
    // The engine takes its rates roughly, and there is a slowest one: how long
    // the speech is to be comes from the speech itself at the usual rate.
    auto usual = speakAtRate(text, kUsualRate, sampleRate_, cancelled);
    if (!usual) {
        return usual;
    }
    stretch(*speech,
            static_cast<std::size_t>(std::lround(static_cast<float>(usual->samples.size()) *
                                                 (platform::kDefaultSpeechRate / rate))));
    return speech;
}

} // namespace lumora::qt
