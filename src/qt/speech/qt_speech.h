// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/machine/speech_synthesizer.h"

#include <memory>

namespace lumora::qt {

class SpeechEngine;

/// Makes the synthesizers of all screens over one engine, itself made when the
/// first screen speaks. Must live longer than they.
class QtSpeech final : public platform::SpeechSynthesizerFactory {
public:
    QtSpeech();
    ~QtSpeech() override;

    std::unique_ptr<platform::SpeechSynthesizer> makeSpeechSynthesizer() override;

private:
    std::unique_ptr<SpeechEngine> engine_;
};

} // namespace lumora::qt
