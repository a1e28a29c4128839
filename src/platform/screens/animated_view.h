// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/base/color.h"

#include <algorithm>
#include <vector>

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

/// A change of an animated view's number, in `duration` seconds, or at once where that
/// is 0. After a change of colour alone `from` and `to` are equal.
struct ViewChange {
    float from = 0;
    float to = 0;
    double duration = 0;

    bool operator==(const ViewChange&) const = default;
};

class ViewChangeListener {
public:
    virtual ~ViewChangeListener() = default;
    virtual void viewChanged(const ViewChange& change) = 0;
};

/// A drawing of one number, which the toolkit animates. Every list that shows it
/// listens; a listener removes itself before it is destroyed.
class AnimatedView {
public:
    virtual ~AnimatedView() = default;
    /// 0 at rest. During an animation it is the number at the animation's end.
    virtual float value() const = 0;
    /// Draws the view as it is at `value`, a frame of an animation.
    virtual void draw(VectorContext& context, Size bounds, float value) const = 0;

    void addListener(ViewChangeListener* listener) { listeners_.push_back(listener); }
    void removeListener(ViewChangeListener* listener) { std::erase(listeners_, listener); }

protected:
    void tell(const ViewChange& change) const
    {
        for (auto* listener : listeners_) {
            listener->viewChanged(change);
        }
    }

private:
    /// Not owned.
    std::vector<ViewChangeListener*> listeners_;
};

} // namespace lumora::platform
