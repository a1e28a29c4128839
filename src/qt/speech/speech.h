// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace lumora::qt {

/// A word's place in the written text and when it begins to sound.
struct SpeechWord {
    std::size_t location = 0;
    std::size_t length = 0;
    std::size_t sample = 0;
};

/// An utterance as sound: one channel of 16-bit samples.
struct Speech {
    int sampleRate = 0;
    std::vector<std::int16_t> samples;
    std::vector<SpeechWord> words;

    std::chrono::milliseconds timeOf(std::size_t sample) const
    {
        const auto rate = static_cast<std::size_t>(sampleRate);
        return std::chrono::milliseconds{rate == 0 ? 0 : sample * 1000 / rate};
    }
    std::chrono::milliseconds duration() const { return timeOf(samples.size()); }
};

} // namespace lumora::qt
