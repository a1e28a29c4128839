// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/animated_view.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>
#include <QVariantAnimation>

#include <memory>
#include <vector>

namespace lumora::qt {

/// A controller's animated view as QML items see it, with the animation that
/// runs. It keeps the view while it lives.
class IndicatorSource final : public QObject, public platform::ViewChangeListener {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to a model")
    /// The view's number is above 0, or its animation runs.
    Q_PROPERTY(bool running READ isRunning NOTIFY runningChanged)

public:
    explicit IndicatorSource(std::shared_ptr<platform::AnimatedView> view);
    ~IndicatorSource() override;

    bool isRunning() const { return running_; }
    /// Where the animation has come to; the view's own number while none runs.
    float shownValue() const;
    const platform::AnimatedView& view() const { return *view_; }
    /// Whether nobody but this object keeps the view any more.
    bool isOrphaned() const { return view_.use_count() == 1; }
    bool isFor(const platform::AnimatedView* view) const { return view_.get() == view; }

    /// A change without duration does not stop a running animation; the new number is
    /// shown when the animation has ended.
    void viewChanged(const platform::ViewChange& change) override;

signals:
    void displayNeeded();
    void runningChanged();

private:
    bool isAnimating() const;
    void animate(const platform::ViewChange& change);
    void update();

    std::shared_ptr<platform::AnimatedView> view_;
    /// Made for the first change that takes time: most views never see one.
    std::unique_ptr<QVariantAnimation> animation_;
    bool running_ = false;
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
