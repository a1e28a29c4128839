// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/speech/qt_speech_synthesizer.h"

#include <algorithm>
#include <iostream>
#include <utility>

namespace lumora::qt {

struct QtSpeechSynthesizer::Current {
    platform::Utterance utterance;
    /// Until the speech is there.
    std::unique_ptr<SpeechEngine::Request> request;
    Speech speech;
    std::unique_ptr<SpeechSink> sink;
    QElapsedTimer clock;
    std::size_t nextWord = 0;
};

QtSpeechSynthesizer::QtSpeechSynthesizer(SpeechEngine& engine) : engine_{engine}
{
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, &QtSpeechSynthesizer::proceed);
}

QtSpeechSynthesizer::~QtSpeechSynthesizer() = default;

void QtSpeechSynthesizer::speak(const platform::Utterance& utterance)
{
    stopSpeaking();
    current_ = std::make_unique<Current>();
    current_->utterance = utterance;
    current_->request = engine_.synthesize(
        utterance, [this](platform::Result<Speech> speech) { begin(std::move(speech)); });
}

void QtSpeechSynthesizer::stopSpeaking()
{
    timer_.stop();
    const auto stopped = std::exchange(current_, nullptr);
    if (!stopped) {
        return;
    }
    stopped->sink.reset();
    if (delegate_ != nullptr) {
        delegate_->didCancel(stopped->utterance);
    }
}

void QtSpeechSynthesizer::begin(platform::Result<Speech> speech)
{
    current_->request.reset();
    if (!speech) {
        std::cerr << "Unable to speak: " << speech.error().message << " (" << speech.error().code
                  << ")\n";
        stopSpeaking();
        return;
    }
    current_->speech = std::move(*speech);
    current_->sink = std::make_unique<SpeechSink>(current_->speech);
    current_->clock.start();
    proceed();
}

void QtSpeechSynthesizer::proceed()
{
    // The delegate may start something else, or end this object: it is told
    // last, one thing at a time.
    auto& now = *current_;
    const auto& speech = now.speech;
    const std::chrono::milliseconds elapsed{now.clock.elapsed()};
    const bool hasWord = now.nextWord < speech.words.size();
    const auto end = speech.duration() + now.sink->latency();
    const auto due = hasWord ? speech.timeOf(speech.words[now.nextWord].sample) : end;
    if (elapsed < due) {
        timer_.start(due - elapsed);
        return;
    }
    if (!hasWord) {
        const auto finished = std::exchange(current_, nullptr);
        if (delegate_ != nullptr) {
            delegate_->didFinish(finished->utterance);
        }
        return;
    }
    const auto word = speech.words[now.nextWord++];
    timer_.start(0);
    if (delegate_ != nullptr) {
        const auto utterance = now.utterance;
        delegate_->willSpeakRange(word.location, word.length, utterance);
    }
}

} // namespace lumora::qt
