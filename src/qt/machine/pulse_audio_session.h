// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/machine/audio_session.h"
#include "qt/base/pulse_loop.h"

#include <atomic>
#include <cstdint>

struct pa_sink_info;

namespace lumora::qt {

/// The default output of the sound server, PulseAudio or PipeWire. A thread of
/// the client library follows its volume, so that asking for it never waits.
class PulseAudioSession final : public platform::AudioSession {
public:
    /// Begins to connect; never starts a server.
    PulseAudioSession();
    ~PulseAudioSession() override;

    float outputVolume() const override { return volume_; }
    /// A desktop has no such categories.
    platform::Result<void> setCategoryPlayback() override { return {}; }
    /// Fails when the server was lost or turns the program away, not where
    /// there is none; tries again to reach one.
    platform::Result<void> activate() override;

private:
    void connect();
    // On the library's thread.
    void stateChanged(pa_context* context);
    void query(pa_context* context);
    void sinkInfo(const pa_sink_info* info, int end);

    std::atomic<float> volume_ = 1;
    /// The library's code of why there is no connection; 0 while there may be.
    std::atomic<int> error_ = 0;
    PulseLoop loop_;
    PulseContext context_;
};

} // namespace lumora::qt
