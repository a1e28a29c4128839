// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "detail/ce_round_progress_layer.h"
#include "platform/screens/animated_view.h"

namespace lumora::detail {

/// A round progress indicator: the public face of its layer. Rising progress
/// is animated, falling progress jumps.
class CERoundProgressView final : public platform::AnimatedView {
public:
    /// Seconds.
    double animationDuration = 0.25;

    /// The target value while an animation runs.
    float progress() const { return layer_.progress; }
    void setProgress(float progress);
    /// Clamps to 0 to 1.
    void setProgress(float progress, bool animated);

    platform::Color tintColor() const { return layer_.tintColor; }
    void setTintColor(const platform::Color& color);
    platform::Color trackColor() const { return layer_.trackColor; }
    void setTrackColor(const platform::Color& color);
    float startAngle() const { return layer_.startAngle; }
    void setStartAngle(float angle);

    float value() const override { return layer_.progress; }
    void draw(platform::VectorContext& context, platform::Size bounds, float value) const override;

private:
    void setNeedsDisplay() const;

    CERoundProgressLayer layer_;
};

} // namespace lumora::detail
