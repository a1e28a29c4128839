// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/animated_layer.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <vector>

namespace lumora::qt {

/// A controller's animated view as QML items see it. It is the view's one
/// host, however many items show it, and keeps the view while it lives.
class IndicatorSource final : public QObject, public platform::LayerHost {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to a model")
    Q_PROPERTY(bool running READ isRunning NOTIFY runningChanged)

public:
    explicit IndicatorSource(std::shared_ptr<platform::AnimatedView> view);
    ~IndicatorSource() override;

    const platform::AnimatedLayer& layer() const { return view_->layer(); }
    bool isRunning() const { return view_->isRunning(); }
    /// Whether nobody but this object keeps the view any more.
    bool isOrphaned() const { return view_.use_count() == 1; }
    bool isFor(const platform::AnimatedView* view) const { return view_.get() == view; }

    void setNeedsDisplay() override
    {
        emit displayNeeded();
        emit runningChanged();
    }
    void addAnimation(float from, float to, double duration) override
    {
        emit animationAdded(from, to, duration);
        emit runningChanged();
    }

signals:
    void displayNeeded();
    /// It may have changed.
    void runningChanged();
    void animationAdded(float from, float to, double duration);

private:
    std::shared_ptr<platform::AnimatedView> view_;
};

/// The sources of one table or collection, one for each view.
class IndicatorPool {
public:
    IndicatorPool();
    ~IndicatorPool();

    /// Null for a null view. Valid until `dropOrphans` finds its view gone.
    IndicatorSource* sourceFor(const std::shared_ptr<platform::AnimatedView>& view);
    void dropOrphans();

private:
    std::vector<std::unique_ptr<IndicatorSource>> sources_;
};

} // namespace lumora::qt
