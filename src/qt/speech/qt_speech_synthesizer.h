// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/machine/speech_synthesizer.h"
#include "qt/speech/speech.h"
#include "qt/speech/speech_engine.h"
#include "qt/speech/speech_sink.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <cstddef>
#include <memory>
#include <optional>

namespace lumora::qt {

/// Speaks what the engine synthesises. Words and the end are reported by the
/// clock, so that they come in real time without an output device too.
class QtSpeechSynthesizer final : public QObject, public platform::SpeechSynthesizer {
    Q_OBJECT

public:
    /// The engine must live longer.
    explicit QtSpeechSynthesizer(SpeechEngine& engine);
    ~QtSpeechSynthesizer() override;

    void setDelegate(platform::SpeechSynthesizerDelegate* delegate) override
    {
        delegate_ = delegate;
    }
    void speak(const platform::Utterance& utterance) override;
    void stopSpeaking() override;
    bool isSpeaking() const override { return current_ != nullptr; }

private:
    /// All that belongs to the utterance being spoken, ended together.
    struct Current;

    void begin(platform::Result<Speech> speech);
    void proceed();

    SpeechEngine& engine_;
    platform::SpeechSynthesizerDelegate* delegate_ = nullptr;
    QTimer timer_;
    std::unique_ptr<Current> current_;
};

} // namespace lumora::qt
