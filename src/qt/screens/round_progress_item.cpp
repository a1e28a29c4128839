// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/screens/round_progress_item.h"

#include "qt/base/color_conversion.h"

#include <QPainter>
#include <QPainterPath>

#include <numbers>

namespace lumora::qt {

namespace {

/// Draws a view's paths with a painter, which it does not own.
class PainterVectorContext final : public platform::VectorContext {
public:
    explicit PainterVectorContext(QPainter& painter) : painter_{painter} {}

    void addEllipse(platform::Point topLeft, platform::Size size) override
    {
        path_.addEllipse(topLeft.x, topLeft.y, size.width, size.height);
    }
    void addArc(platform::Point center, double radius, double startAngle, double endAngle) override
    {
        const QRectF circle{center.x - radius, center.y - radius, 2 * radius, 2 * radius};
        // QPainterPath counts degrees against the clock.
        const double start = -startAngle * 180 / std::numbers::pi;
        const double sweep = -(endAngle - startAngle) * 180 / std::numbers::pi;
        path_.arcMoveTo(circle, start);
        path_.arcTo(circle, start, sweep);
    }
    void addLineTo(platform::Point point) override { path_.lineTo(point.x, point.y); }
    void closePath() override { path_.closeSubpath(); }
    void fillPath(const platform::Color& color) override
    {
        painter_.fillPath(path_, toQColor(color));
        path_ = {};
    }

private:
    QPainter& painter_;
    QPainterPath path_;
};

} // namespace

RoundProgressItem::RoundProgressItem(QQuickItem* parent) : QQuickPaintedItem{parent}
{
    setAntialiasing(true);
}

void RoundProgressItem::setSource(IndicatorSource* source)
{
    if (source_ == source) {
        return;
    }
    if (source_) {
        source_->disconnect(this);
    }
    source_ = source;
    if (source_) {
        connect(source_, &IndicatorSource::displayNeeded, this, [this] { update(); });
        connect(source_, &QObject::destroyed, this, &RoundProgressItem::sourceChanged);
    }
    update();
    emit sourceChanged();
}

void RoundProgressItem::paint(QPainter* painter)
{
    if (!source_) {
        return;
    }
    painter->setRenderHint(QPainter::Antialiasing);
    PainterVectorContext context{*painter};
    source_->view().draw(context, {width(), height()}, source_->shownValue());
}

} // namespace lumora::qt
