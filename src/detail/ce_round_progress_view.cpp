// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "detail/ce_round_progress_view.h"

#include <algorithm>

namespace lumora::detail {

void CERoundProgressView::setProgress(float progress)
{
    setProgress(progress, progress > layer_.progress);
}

void CERoundProgressView::setProgress(float progress, bool animated)
{
    // A value that is no number at all counts as the bare track.
    const float target = progress >= 0 ? std::min(progress, 1.0F) : 0.0F;
    const float from = layer_.progress;
    layer_.progress = target;
    tell({from, target, animated ? animationDuration : 0});
}

void CERoundProgressView::setTintColor(const platform::Color& color)
{
    layer_.tintColor = color;
    setNeedsDisplay();
}

void CERoundProgressView::setTrackColor(const platform::Color& color)
{
    layer_.trackColor = color;
    setNeedsDisplay();
}

void CERoundProgressView::setStartAngle(float angle)
{
    layer_.startAngle = angle;
    setNeedsDisplay();
}

void CERoundProgressView::draw(platform::VectorContext& context, platform::Size bounds,
                               float value) const
{
    auto presentation = layer_;
    presentation.progress = value;
    presentation.drawInContext(context, bounds);
}

void CERoundProgressView::setNeedsDisplay() const
{
    tell({layer_.progress, layer_.progress, 0});
}

} // namespace lumora::detail
