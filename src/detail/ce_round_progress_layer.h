// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/animated_view.h"

namespace lumora::detail {

/// What a round progress indicator draws: a disc in the track colour and over
/// it a wedge in the tint colour, clockwise from the start angle. A copy with
/// another progress is a frame of an animation.
class CERoundProgressLayer {
public:
    /// 0 to 1.
    float progress = 0;
    /// Radians, 0 at three o'clock.
    float startAngle = 0;
    platform::Color tintColor{0.2, 0.45, 0.8, 1};
    platform::Color trackColor = platform::kWhiteColor;

    void drawInContext(platform::VectorContext& context, platform::Size bounds) const;
};

} // namespace lumora::detail
