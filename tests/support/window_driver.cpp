// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/window_driver.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QMouseEvent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTimer>

#include <algorithm>
#include <ranges>

namespace lumora::support {

namespace {

constexpr int kPatience = 5000;
constexpr int kStep = 10;

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

void sendMouse(QQuickWindow& window, QEvent::Type type, const QPointF& point)
{
    QMouseEvent event{type,
                      point,
                      window.mapToGlobal(point),
                      type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                      Qt::NoModifier};
    QCoreApplication::sendEvent(&window, &event);
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

void WindowDriver::press(const QPointF& point) const
{
    sendMouse(window_, QEvent::MouseButtonPress, point);
}

void WindowDriver::move(const QPointF& point) const
{
    sendMouse(window_, QEvent::MouseMove, point);
}

void WindowDriver::release(const QPointF& point) const
{
    sendMouse(window_, QEvent::MouseButtonRelease, point);
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
        if (waited > kPatience) {
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
    QTimer::singleShot(kPatience, &loop, &QEventLoop::quit);
    window_.update();
    loop.exec();
    return drawn;
}

} // namespace lumora::support
