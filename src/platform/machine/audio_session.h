// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/base/error.h"

namespace lumora::platform {

/// What the program asks of the machine's sound output. No call waits for the
/// machine.
class AudioSession {
public:
    virtual ~AudioSession() = default;
    /// 0 to 1; 0 while the output is muted, 1 where there is none.
    virtual float outputVolume() const = 0;
    /// Asks to play sound also when the machine is set to silent.
    virtual Result<void> setCategoryPlayback() = 0;
    virtual Result<void> activate() = 0;
};

} // namespace lumora::platform
