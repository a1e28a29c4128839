// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/tour/window_driver.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QEventLoop>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTimer>

#include <algorithm>
#include <ranges>

namespace lumora::qt {

namespace {

constexpr int kLongestWaitMilliseconds = 5000;
constexpr int kStep = 10;
/// Long enough for every animation of ours.
constexpr int kSettleMilliseconds = 600;
/// Without a new frame: nothing moves any more.
constexpr int kStillMilliseconds = 200;

void collectCells(QQuickItem* parent, const QRectF& window, std::vector<QQuickItem*>& found)
{
    for (auto* child : parent->childItems()) {
        if (!child->isVisible()) {
            continue;
        }
        if (!child->property("isCell").toBool()) {
            collectCells(child, window, found);
        } else if (window.contains(child->mapRectToScene(child->boundingRect()))) {
            found.push_back(child);
        }
    }
}

} // namespace

QQuickItem* WindowDriver::find(const QString& name) const
{
    return findIn(*window_.contentItem(), name);
}

QQuickItem* WindowDriver::findIn(QQuickItem& parent, const QString& name)
{
    const auto children = parent.childItems();
    for (auto* child : std::views::reverse(children)) {
        if (!child->isVisible()) {
            continue;
        }
        if (child->objectName() == name && child->width() > 0) {
            return child;
        }
        if (auto* found = findIn(*child, name)) {
            return found;
        }
    }
    return nullptr;
}

std::vector<QQuickItem*> WindowDriver::cells() const
{
    std::vector<QQuickItem*> found;
    collectCells(window_.contentItem(), QRectF{{}, QSizeF{window_.size()}}, found);
    std::sort(found.begin(), found.end(), [](QQuickItem* left, QQuickItem* right) {
        return left->mapToScene({}).y() < right->mapToScene({}).y();
    });
    return found;
}

QQuickItem* WindowDriver::listOf(QQuickItem* item)
{
    while (item != nullptr && !item->property("contentY").isValid()) {
        item = item->parentItem();
    }
    return item;
}

QPointF WindowDriver::middleOf(const QQuickItem& item)
{
    return item.mapToScene({item.width() / 2, item.height() / 2});
}

void WindowDriver::sendMouse(QEvent::Type type, const QPointF& point, Qt::MouseButton button) const
{
    QMouseEvent event{type,
                      point,
                      window_.mapToGlobal(point),
                      type == QEvent::MouseMove ? Qt::NoButton : button,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : button,
                      Qt::NoModifier};
    // Without the time a press looks like a fast move.
    event.setTimestamp(static_cast<quint64>(QDateTime::currentMSecsSinceEpoch()));
    QCoreApplication::sendEvent(&window_, &event);
}

void WindowDriver::press(const QPointF& point, Qt::MouseButton button) const
{
    sendMouse(QEvent::MouseButtonPress, point, button);
}

void WindowDriver::move(const QPointF& point) const
{
    sendMouse(QEvent::MouseMove, point, Qt::LeftButton);
}

void WindowDriver::release(const QPointF& point, Qt::MouseButton button) const
{
    sendMouse(QEvent::MouseButtonRelease, point, button);
}

void WindowDriver::pressKey(Qt::Key key) const
{
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event{type, key, Qt::NoModifier};
        QCoreApplication::sendEvent(&window_, &event);
    }
}

void WindowDriver::wait(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

bool WindowDriver::waitUntil(const std::function<bool()>& condition)
{
    for (int waited = 0; !condition(); waited += kStep) {
        if (waited > kLongestWaitMilliseconds) {
            return false;
        }
        wait(kStep);
    }
    return true;
}

bool WindowDriver::waitForFrame() const
{
    QEventLoop loop;
    bool drawn = false;
    QObject::connect(&window_, &QQuickWindow::frameSwapped, &loop, [&] {
        drawn = true;
        loop.quit();
    });
    QTimer::singleShot(kLongestWaitMilliseconds, &loop, &QEventLoop::quit);
    window_.update();
    loop.exec();
    return drawn;
}

void WindowDriver::settle() const
{
    QEventLoop loop;
    QTimer stillness;
    stillness.setSingleShot(true);
    stillness.setInterval(kStillMilliseconds);
    QObject::connect(&window_, &QQuickWindow::frameSwapped, &stillness,
                     qOverload<>(&QTimer::start));
    QObject::connect(&stillness, &QTimer::timeout, &loop, &QEventLoop::quit);
    QTimer::singleShot(kSettleMilliseconds, &loop, &QEventLoop::quit);
    stillness.start();
    loop.exec();
}

} // namespace lumora::qt
