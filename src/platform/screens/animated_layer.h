// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/base/color.h"

#include <memory>

namespace lumora::platform {

struct Size {
    double width = 0;
    double height = 0;
};

struct Point {
    double x = 0;
    double y = 0;
};

/// The few path operations that a drawing of ours needs. Angles in radians,
/// 0 at three o'clock, growing clockwise on screen (y points down).
class VectorContext {
public:
    virtual ~VectorContext() = default;
    virtual void addEllipse(Point topLeft, Size size) = 0;
    virtual void addArc(Point center, double radius, double startAngle, double endAngle) = 0;
    virtual void addLineTo(Point point) = 0;
    virtual void closePath() = 0;
    /// Fills the path built so far and begins a new one.
    virtual void fillPath(const Color& color) = 0;
};

/// A drawing that depends on one number, which the toolkit can animate.
class AnimatedLayer {
public:
    virtual ~AnimatedLayer() = default;
    virtual void drawInContext(VectorContext& context, Size bounds) const = 0;
    /// A copy to draw one frame of an animation with, at `value`.
    virtual std::unique_ptr<AnimatedLayer> presentationCopy(float value) const = 0;
};

/// The toolkit's side of a view with an AnimatedLayer.
class LayerHost {
public:
    virtual ~LayerHost() = default;
    /// The layer changed: draw it again at its present value.
    virtual void setNeedsDisplay() = 0;
    /// Runs the layer's number from `from` to `to` in `duration` seconds,
    /// replacing an animation that is still running.
    virtual void addAnimation(float from, float to, double duration) = 0;
};

/// A view that the toolkit hosts. Neither owns the other; the host takes
/// itself off (null) before it goes.
class AnimatedView {
public:
    virtual ~AnimatedView() = default;
    virtual const AnimatedLayer& layer() const = 0;
    /// Whether the process that the number shows is still running.
    virtual bool isRunning() const = 0;
    virtual void setHost(LayerHost* host) = 0;
};

} // namespace lumora::platform
