// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/screens/painter_vector_context.h"

#include "qt/base/color_conversion.h"

#include <QPainter>
#include <QtMath>

#include <numbers>

namespace lumora::qt {

void PainterVectorContext::addEllipse(platform::Point topLeft, platform::Size size)
{
    path_.addEllipse(topLeft.x, topLeft.y, size.width, size.height);
}

void PainterVectorContext::addArc(platform::Point center, double radius, double startAngle,
                                  double endAngle)
{
    const QRectF circle{center.x - radius, center.y - radius, 2 * radius, 2 * radius};
    // QPainterPath counts degrees against the clock.
    const double start = -startAngle * 180 / std::numbers::pi;
    const double sweep = -(endAngle - startAngle) * 180 / std::numbers::pi;
    path_.arcMoveTo(circle, start);
    path_.arcTo(circle, start, sweep);
}

void PainterVectorContext::addLineTo(platform::Point point)
{
    path_.lineTo(point.x, point.y);
}

void PainterVectorContext::closePath()
{
    path_.closeSubpath();
}

void PainterVectorContext::fillPath(const platform::Color& color)
{
    painter_.fillPath(path_, toQColor(color));
    path_ = {};
}

} // namespace lumora::qt
