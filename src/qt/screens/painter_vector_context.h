// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/animated_layer.h"

#include <QPainterPath>

class QPainter;

namespace lumora::qt {

/// Draws a layer's paths with a painter, which it does not own.
class PainterVectorContext final : public platform::VectorContext {
public:
    explicit PainterVectorContext(QPainter& painter) : painter_{painter} {}

    void addEllipse(platform::Point topLeft, platform::Size size) override;
    void addArc(platform::Point center, double radius, double startAngle, double endAngle) override;
    void addLineTo(platform::Point point) override;
    void closePath() override;
    void fillPath(const platform::Color& color) override;

private:
    QPainter& painter_;
    QPainterPath path_;
};

} // namespace lumora::qt
