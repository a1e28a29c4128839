// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/desktop/on_screen_keyboard.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QGuiApplication>
#include <QInputMethodQueryEvent>

#include <utility>

namespace lumora::qt {

namespace {

const QString kKeyboardService = QStringLiteral("sm.puri.OSK0");
const QString kKeyboardPath = QStringLiteral("/sm/puri/OSK0");

bool takesText(QObject* object)
{
    if (object == nullptr) {
        return false;
    }
    QInputMethodQueryEvent query{Qt::ImEnabled};
    QCoreApplication::sendEvent(object, &query);
    return query.value(Qt::ImEnabled).toBool();
}

} // namespace

OnScreenKeyboard::OnScreenKeyboard(QDBusConnection bus) : bus_{std::move(bus)}
{
    if (bus_.isConnected()) {
        connect(qGuiApp, &QGuiApplication::focusObjectChanged, this, &OnScreenKeyboard::follow);
    }
}

void OnScreenKeyboard::follow(QObject* focused)
{
    const bool wanted = takesText(focused);
    if (wanted == asked_) {
        return;
    }
    asked_ = wanted;
    auto call = QDBusMessage::createMethodCall(kKeyboardService, kKeyboardPath, kKeyboardService,
                                               QStringLiteral("SetVisible"));
    call.setAutoStartService(false);
    call << wanted;
    bus_.send(call);
}

} // namespace lumora::qt
