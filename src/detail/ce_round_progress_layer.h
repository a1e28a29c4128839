// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/animated_layer.h"

namespace lumora::detail {

/// What a round progress indicator draws: a disc in the track colour and over
/// it a wedge in the tint colour, clockwise from the start angle.
class CERoundProgressLayer final : public platform::AnimatedLayer {
public:
    /// 0 to 1.
    float progress = 0;
    /// Radians, 0 at three o'clock.
    float startAngle = 0;
    platform::Color tintColor{0.2, 0.45, 0.8, 1};
    platform::Color trackColor = platform::kWhiteColor;

    void drawInContext(platform::VectorContext& context, platform::Size bounds) const override;
    std::unique_ptr<platform::AnimatedLayer> presentationCopy(float value) const override;
};

} // namespace lumora::detail
