// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/speech_synthesizer.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace lumora::support {

/// Speaks as far as a test lets it.
class FakeSpeechSynthesizer final : public platform::SpeechSynthesizer {
public:
    void setDelegate(platform::SpeechSynthesizerDelegate* delegate) override
    {
        delegate_ = delegate;
    }
    void speak(const platform::Utterance& utterance) override
    {
        stopSpeaking();
        spoken.push_back(utterance);
        current_ = utterance;
    }
    void stopSpeaking() override
    {
        if (const auto stopped = std::exchange(current_, {}); stopped && delegate_ != nullptr) {
            ++stops;
            delegate_->didCancel(*stopped);
        }
    }
    bool isSpeaking() const override { return current_.has_value(); }

    /// Nothing happens while nothing is spoken.
    void reachWord(std::size_t location, std::size_t length)
    {
        if (current_) {
            delegate_->willSpeakRange(location, length, *current_);
        }
    }
    void reachEnd()
    {
        if (const auto finished = std::exchange(current_, {})) {
            delegate_->didFinish(*finished);
        }
    }

    std::vector<platform::Utterance> spoken;
    /// Stops of something being spoken.
    int stops = 0;

private:
    platform::SpeechSynthesizerDelegate* delegate_ = nullptr;
    std::optional<platform::Utterance> current_;
};

/// Makes the fakes and finds them again, each while its screen lives.
class FakeSpeechSynthesizerFactory final : public platform::SpeechSynthesizerFactory {
public:
    std::unique_ptr<platform::SpeechSynthesizer> makeSpeechSynthesizer() override
    {
        auto made = std::make_unique<FakeSpeechSynthesizer>();
        synthesizers.push_back(made.get());
        return made;
    }

    std::vector<FakeSpeechSynthesizer*> synthesizers;
};

} // namespace lumora::support
