// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "qt/models/indicator_source.h"

#include <QPointer>
#include <QQuickPaintedItem>

namespace lumora::qt {

/// Paints a controller's animated view, frame by frame.
class RoundProgressItem : public QQuickPaintedItem {
    Q_OBJECT
    QML_NAMED_ELEMENT(RoundProgress)
    Q_PROPERTY(lumora::qt::IndicatorSource* source READ source WRITE setSource NOTIFY sourceChanged)

public:
    explicit RoundProgressItem(QQuickItem* parent = nullptr);

    IndicatorSource* source() const { return source_; }
    void setSource(IndicatorSource* source);

    void paint(QPainter* painter) override;

signals:
    void sourceChanged();

private:
    QPointer<IndicatorSource> source_;
};

} // namespace lumora::qt
