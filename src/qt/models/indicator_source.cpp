// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/models/indicator_source.h"

#include <QQmlEngine>

#include <algorithm>
#include <utility>

namespace lumora::qt {

IndicatorSource::IndicatorSource(std::shared_ptr<platform::AnimatedView> view)
    : view_{std::move(view)}, running_{view_->value() > 0}
{
    // Without this QML would take an object without a parent for its own.
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
    view_->addListener(this);
}

IndicatorSource::~IndicatorSource()
{
    view_->removeListener(this);
}

bool IndicatorSource::isAnimating() const
{
    return animation_ && animation_->state() == QAbstractAnimation::Running;
}

float IndicatorSource::shownValue() const
{
    return isAnimating() ? animation_->currentValue().toFloat() : view_->value();
}

void IndicatorSource::viewChanged(const platform::ViewChange& change)
{
    if (change.duration > 0) {
        animate(change);
    }
    update();
}

void IndicatorSource::animate(const platform::ViewChange& change)
{
    if (!animation_) {
        animation_ = std::make_unique<QVariantAnimation>();
        connect(animation_.get(), &QVariantAnimation::valueChanged, this,
                &IndicatorSource::displayNeeded);
        connect(animation_.get(), &QVariantAnimation::finished, this, &IndicatorSource::update);
    }
    animation_->stop();
    animation_->setStartValue(change.from);
    animation_->setEndValue(change.to);
    animation_->setDuration(static_cast<int>(change.duration * 1000));
    animation_->start();
}

void IndicatorSource::update()
{
    const bool running = view_->value() > 0 || isAnimating();
    if (std::exchange(running_, running) != running) {
        emit runningChanged();
    }
    emit displayNeeded();
}

IndicatorPool::IndicatorPool() = default;
IndicatorPool::~IndicatorPool() = default;

IndicatorSource* IndicatorPool::sourceFor(const std::shared_ptr<platform::AnimatedView>& view)
{
    if (!view) {
        return nullptr;
    }
    const auto found = std::find_if(sources_.begin(), sources_.end(),
                                    [&](const auto& source) { return source->isFor(view.get()); });
    if (found != sources_.end()) {
        return found->get();
    }
    return sources_.emplace_back(std::make_unique<IndicatorSource>(view)).get();
}

void IndicatorPool::dropOrphans()
{
    std::erase_if(sources_, [](const auto& source) { return source->isOrphaned(); });
}

} // namespace lumora::qt
