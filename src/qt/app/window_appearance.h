// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/app_delegate.h"
#include "qt/base/color_conversion.h"
#include "qt/desktop/appearance.h"

#include <QColor>
#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <utility>

namespace lumora::qt {

/// How the window looks, for the theme in QML: what the desktop is set to, and
/// the colours that the program chose. GUI thread only.
class WindowAppearance final : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(Appearance)
    QML_UNCREATABLE("Made by the program")
    Q_PROPERTY(bool dark READ isDark NOTIFY desktopChanged)
    Q_PROPERTY(double textScale READ textScale NOTIFY desktopChanged)
    Q_PROPERTY(bool reducedMotion READ isMotionReduced NOTIFY desktopChanged)
    Q_PROPERTY(QColor accent READ accent CONSTANT)
    Q_PROPERTY(QColor navigationBarTint READ navigationBarTint NOTIFY barsChanged)
    Q_PROPERTY(QColor navigationBarBackground READ navigationBarBackground NOTIFY barsChanged)
    Q_PROPERTY(QColor navigationBarTitle READ navigationBarTitle NOTIFY barsChanged)
    Q_PROPERTY(QColor tabBarTint READ tabBarTint NOTIFY barsChanged)
    Q_PROPERTY(QColor segmentedControlTint READ segmentedControlTint NOTIFY barsChanged)

public:
    /// Until the launch has chosen the colours of the bars, they are white on
    /// the accent.
    explicit WindowAppearance(const platform::Color& accent)
        : accent_{accent},
          bars_{platform::kWhiteColor,
                accent,
                platform::kWhiteColor,
                accent,
                {1 / 3.0, 1 / 3.0, 1 / 3.0, 1}}
    {}

    bool isDark() const { return desktop_.dark; }
    double textScale() const { return desktop_.textScale; }
    bool isMotionReduced() const { return desktop_.reducedMotion; }
    QColor accent() const { return toQColor(accent_); }
    QColor navigationBarTint() const { return toQColor(bars_.navigationBarTint); }
    QColor navigationBarBackground() const { return toQColor(bars_.navigationBarBackground); }
    QColor navigationBarTitle() const { return toQColor(bars_.navigationBarTitle); }
    QColor tabBarTint() const { return toQColor(bars_.tabBarTint); }
    QColor segmentedControlTint() const { return toQColor(bars_.segmentedControlTint); }

    void setDesktop(const Appearance& appearance)
    {
        if (std::exchange(desktop_, appearance) != appearance) {
            emit desktopChanged();
        }
    }
    void setBars(const app::BarColors& bars)
    {
        bars_ = bars;
        emit barsChanged();
    }

signals:
    void desktopChanged();
    void barsChanged();

private:
    platform::Color accent_;
    Appearance desktop_;
    app::BarColors bars_;
};

} // namespace lumora::qt
