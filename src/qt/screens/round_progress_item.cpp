// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/screens/round_progress_item.h"

#include "qt/screens/painter_vector_context.h"

#include <QPainter>

namespace lumora::qt {

RoundProgressItem::RoundProgressItem(QQuickItem* parent) : QQuickPaintedItem{parent}
{
    setAntialiasing(true);
    connect(&animation_, &QVariantAnimation::valueChanged, this, [this] { update(); });
    connect(&animation_, &QVariantAnimation::finished, this, [this] { update(); });
}

void RoundProgressItem::setSource(IndicatorSource* source)
{
    if (source_ == source) {
        return;
    }
    if (source_) {
        source_->disconnect(this);
    }
    animation_.stop();
    source_ = source;
    if (source_) {
        connect(source_, &IndicatorSource::displayNeeded, this, [this] {
            // A value set at once ends what still runs towards another.
            animation_.stop();
            update();
        });
        connect(source_, &IndicatorSource::animationAdded, this, &RoundProgressItem::animate);
        connect(source_, &QObject::destroyed, this, [this] {
            animation_.stop();
            emit sourceChanged();
        });
    }
    update();
    emit sourceChanged();
}

void RoundProgressItem::animate(float from, float to, double duration)
{
    animation_.stop();
    animation_.setStartValue(from);
    animation_.setEndValue(to);
    animation_.setDuration(static_cast<int>(duration * 1000));
    animation_.start();
}

void RoundProgressItem::paint(QPainter* painter)
{
    if (!source_) {
        return;
    }
    painter->setRenderHint(QPainter::Antialiasing);
    PainterVectorContext context{*painter};
    const platform::Size bounds{width(), height()};
    if (animation_.state() == QAbstractAnimation::Running) {
        source_->layer()
            .presentationCopy(animation_.currentValue().toFloat())
            ->drawInContext(context, bounds);
    } else {
        source_->layer().drawInContext(context, bounds);
    }
}

} // namespace lumora::qt
