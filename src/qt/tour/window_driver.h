// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QEvent>
#include <QPointF>
#include <QString>

#include <functional>
#include <vector>

class QQuickItem;
class QQuickWindow;

namespace lumora::qt {

/// Touches a window of ours as a person does, and finds what is on it: for the
/// tour, the tests and the benchmarks. It knows nothing of the application. GUI
/// thread only; the window must live longer.
class WindowDriver {
public:
    explicit WindowDriver(QQuickWindow& window) : window_{window} {}

    /// The topmost visible item of that name; null when there is none.
    QQuickItem* find(const QString& name) const;
    static QQuickItem* findIn(QQuickItem& parent, const QString& name);
    /// The cells of tables that are wholly in the window, from its top.
    std::vector<QQuickItem*> cells() const;
    /// The list that scrolls the item; null when none does.
    static QQuickItem* listOf(QQuickItem* item);
    static QPointF middleOf(const QQuickItem& item);

    void press(const QPointF& point, Qt::MouseButton button = Qt::LeftButton) const;
    void move(const QPointF& point) const;
    void release(const QPointF& point, Qt::MouseButton button = Qt::LeftButton) const;
    void pressKey(Qt::Key key) const;

    /// Lets the program run for a while.
    static void wait(int milliseconds);
    /// Lets it run until that is so; false when it never was.
    static bool waitUntil(const std::function<bool()>& condition);
    /// Lets it run until its next frame is drawn; false when none came.
    bool waitForFrame() const;
    /// Lets it run until nothing moves any more.
    void settle() const;

private:
    void sendMouse(QEvent::Type type, const QPointF& point, Qt::MouseButton button) const;

    QQuickWindow& window_;
};

} // namespace lumora::qt
