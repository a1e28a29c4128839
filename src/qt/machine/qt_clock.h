// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/machine/clock.h"

namespace lumora::qt {

/// The system's clock and the event loop.
class QtClock final : public platform::Clock {
public:
    double secondsSince1970() const override;
    void runLater(std::chrono::milliseconds delay, std::function<void()> work) override;
};

} // namespace lumora::qt
