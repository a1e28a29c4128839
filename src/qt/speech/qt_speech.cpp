// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/speech/qt_speech.h"

#include "qt/speech/qt_speech_synthesizer.h"
#include "qt/speech/speech_engine.h"

namespace lumora::qt {

QtSpeech::QtSpeech() = default;
QtSpeech::~QtSpeech() = default;

std::unique_ptr<platform::SpeechSynthesizer> QtSpeech::makeSpeechSynthesizer()
{
    if (!engine_) {
        engine_ = std::make_unique<SpeechEngine>();
    }
    return std::make_unique<QtSpeechSynthesizer>(*engine_);
}

} // namespace lumora::qt
