// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "benches.h"
#include "qt/speech/espeak_voice.h"
#include "qt/speech/qt_speech_synthesizer.h"

#include <QCoreApplication>

#include <atomic>
#include <stdexcept>

namespace lumora::bench {
namespace {

constexpr const char* kRows[] = {"je parle",
                                 "nous sommes allés",
                                 "que nous nous fussions évanouis",
                                 "ils/elles auraient conjugué",
                                 "qu'il/elle/on eût entretenu",
                                 "vous haïssiez"};

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

} // namespace

void measureSpeech(Report& report)
{
    constexpr int kRounds = 5;
    qt::SpeechEngine engine;
    qt::QtSpeechSynthesizer synthesizer{engine};
    const qt::EspeakVoice voice;
    const std::atomic<bool> never{false};
    Figure figure{"first sound after the tap", {}, "the engine alone", {}, {}, {}};
    for (int round = -1; round < kRounds; ++round) {
        for (const char* row : kRows) {
            const platform::Utterance utterance{row, "fr", platform::kDefaultSpeechRate};
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
            const auto reference = millisecondsOf([&] { use(voice.synthesize(utterance, never)); });
            if (round >= 0) {
                figure.own.add(own);
                figure.referenceSamples.add(reference);
            }
        }
    }
    figure.asked = "95 % in 150 ms";
    figure.holds = figure.own.p95() <= 150;
    report.add(figure);
}

} // namespace lumora::bench
