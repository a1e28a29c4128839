// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "qt/base/pulse_loop.h"
#include "qt/speech/speech.h"

#include <pulse/stream.h>

#include <atomic>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

namespace lumora::qt {

/// Plays one speech on the sound server's default output, silently where there is
/// none. A thread of the client library feeds the server, so that a busy window
/// does not interrupt the sound. Its destructor ends the sound at once.
class SpeechSink {
public:
    /// The speech must live longer. Begins to connect and never waits; never
    /// starts a server.
    explicit SpeechSink(const Speech& speech);
    ~SpeechSink();

    /// How long the output may still sound after the last sample of the speech.
    std::chrono::milliseconds latency() const;

private:
    struct StreamDeleter {
        void operator()(pa_stream* stream) const;
    };

    bool connect();
    // On the library's thread.
    void stateChanged();
    void play();
    void pour(std::size_t room);

    const Speech& speech_;
    /// What the server had no room for yet.
    std::span<const std::int16_t> rest_;
    std::atomic<bool> silent_ = false;
    PulseLoop loop_;
    PulseContext context_;
    std::unique_ptr<pa_stream, StreamDeleter> stream_;
};

} // namespace lumora::qt
