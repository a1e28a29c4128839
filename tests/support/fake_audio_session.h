// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/audio_session.h"

#include <string>
#include <vector>

namespace lumora::support {

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
