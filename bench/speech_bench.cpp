// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "benches.h"
#include "qt/speech/espeak_voice.h"
#include "qt/speech/qt_speech_synthesizer.h"
#include "sound/pronunciation.h"
#include "text/text.h"

#include <QCoreApplication>

#include <atomic>
#include <stdexcept>
#include <string>
#include <string_view>

namespace lumora::bench {
namespace {

constexpr sound::Row kRows[] = {
    {"parler", "je", "parle", "indicatifPresent"},
    {"aller", "nous", "sommes allé(e)s", "indicatifPasseCompose"},
    {"évanouir", "que nous nous", "fussions évanoui(e)s", "subjonctifPlusqueParfait"},
    {"conjuguer", "ils/elles", "auraient conjugué", "conditionnelPasse1reForme"},
    {"entretenir", "qu'il/elle/on", "eût entretenu", "subjonctifPlusqueParfait"},
    {"haïr", "vous", "haïssiez", "indicatifImparfait", true},
};

platform::Utterance utteranceOf(const sound::Row& row, bool withSounds)
{
    platform::Utterance utterance{std::string{row.pronoun} + ' ' + std::string{row.form}, "fr"};
    for (const auto& word : sound::spokenWords(utterance.text, row)) {
        const std::string_view text = utterance.text;
        if (withSounds) {
            utterance.words.push_back({text::characterCount(text.substr(0, word.begin)),
                                       text::characterCount(text.substr(word.begin, word.length)),
                                       word.ipa});
        }
    }
    return utterance;
}

/// Hears when the first word begins to sound.
class FirstWord final : public platform::SpeechSynthesizerDelegate {
public:
    void willSpeakRange(std::size_t /*location*/, std::size_t /*length*/,
                        const platform::Utterance& /*utterance*/) override
    {
        heard = true;
    }
    void didFinish(const platform::Utterance& /*utterance*/) override { ended = true; }
    void didCancel(const platform::Utterance& /*utterance*/) override { ended = true; }

    bool heard = false;
    bool ended = false;
};

void measureRow(Report& report)
{
    constexpr int kRounds = 20;
    constexpr int kReadings = 100;
    const qt::EspeakVoice voice;
    const std::atomic<bool> never{false};
    Figure figure{"a row in IPA", {}, "the engine, which speaks it", {}, {}, {}, "µs"};
    for (int round = 0; round < kRounds; ++round) {
        for (const auto& row : kRows) {
            const auto plain = utteranceOf(row, false);
            figure.referenceSamples.add(
                1000 * millisecondsOf([&] { use(voice.synthesize(plain, never)); }));
            for (int reading = 0; reading < kReadings; ++reading) {
                figure.own.add(1000 * millisecondsOf([&] { use(sound::ipa(row)); }));
            }
        }
    }
    // Measured: 1/500, 95 % 1/700 to 1/900.
    holdAgainstReference(figure, {1.0 / 100, 1.0 / 100});
    report.add(figure);
}

} // namespace

void measureSpeech(Report& report)
{
    measureRow(report);
    constexpr int kRounds = 5;
    qt::SpeechEngine engine;
    qt::QtSpeechSynthesizer synthesizer{engine};
    const qt::EspeakVoice voice;
    const std::atomic<bool> never{false};
    Figure figure{"first sound after the tap", {}, "the engine alone, from plain text", {}, {}, {}};
    for (int round = -1; round < kRounds; ++round) {
        for (const auto& row : kRows) {
            const auto utterance = utteranceOf(row, true);
            const auto plain = utteranceOf(row, false);
            FirstWord listener;
            synthesizer.setDelegate(&listener);
            const auto own = millisecondsOf([&] {
                synthesizer.speak(utterance);
                while (!listener.heard && !listener.ended) {
                    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
                }
            });
            if (!listener.heard) {
                throw std::runtime_error("the voice is silent");
            }
            synthesizer.stopSpeaking();
            synthesizer.setDelegate(nullptr);
            const auto reference = millisecondsOf([&] { use(voice.synthesize(plain, never)); });
            if (round >= 0) {
                figure.own.add(own);
                figure.referenceSamples.add(reference);
            }
        }
    }
    // Measured: 1.2 to 1.3, 95 % 1.4 to 2.1; the percentile is of 30 taps.
    holdAgainstReference(figure, {2.5, 4});
    report.add(figure);
}

} // namespace lumora::bench
