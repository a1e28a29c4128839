// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/machine/audio_session.h"
#include "platform/machine/speech_synthesizer.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
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

/// Plays at the volume of a test's choice and writes down what it is asked for.
class FakeAudioSession final : public platform::AudioSession {
public:
    float outputVolume() const override { return volume; }
    platform::Result<void> setCategoryPlayback() override
    {
        calls.emplace_back("category");
        return categoryResult;
    }
    platform::Result<void> activate() override
    {
        calls.emplace_back("activate");
        return activateResult;
    }

    float volume = 1;
    platform::Result<void> categoryResult;
    platform::Result<void> activateResult;
    std::vector<std::string> calls;
};

} // namespace lumora::support
