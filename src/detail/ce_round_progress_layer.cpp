// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "detail/ce_round_progress_layer.h"

#include <algorithm>
#include <numbers>

namespace lumora::detail {

void CERoundProgressLayer::drawInContext(platform::VectorContext& context,
                                         platform::Size bounds) const
{
    const double radius = std::min(bounds.width, bounds.height) * 0.5;
    const platform::Point center{bounds.width * 0.5, bounds.height * 0.5};

    context.addEllipse({center.x - radius, center.y - radius}, {2 * radius, 2 * radius});
    context.fillPath(trackColor);

    const double start = startAngle;
    context.addArc(center, radius, start,
                   start + static_cast<double>(progress) * 2 * std::numbers::pi);
    context.addLineTo(center);
    context.closePath();
    context.fillPath(tintColor);
}

} // namespace lumora::detail
