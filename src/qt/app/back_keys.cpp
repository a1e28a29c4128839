// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/app/back_keys.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>

namespace lumora::qt {

namespace {

bool isBackButton(const QEvent& event)
{
    return event.type() == QEvent::MouseButtonPress &&
           static_cast<const QMouseEvent&>(event).button() == Qt::BackButton;
}

bool isAltLeft(const QEvent& event)
{
    if (event.type() != QEvent::KeyPress) {
        return false;
    }
    const auto& key = static_cast<const QKeyEvent&>(event);
    return key.key() == Qt::Key_Left && (key.modifiers() & ~Qt::KeypadModifier) == Qt::AltModifier;
}

} // namespace

BackKeys::BackKeys(QObject* window) : QObject{window}
{
    window->installEventFilter(this);
}

bool BackKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (!isBackButton(*event) && !isAltLeft(*event)) {
        return false;
    }
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent back{type, Qt::Key_Back, Qt::NoModifier};
        QCoreApplication::sendEvent(watched, &back);
    }
    return true;
}

} // namespace lumora::qt
