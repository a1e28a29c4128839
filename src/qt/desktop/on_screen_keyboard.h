// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDBusConnection>
#include <QObject>

namespace lumora::qt {

/// Raises a phone's keyboard while a text field has the focus. Phosh's keyboard
/// waits for a text-input protocol that Qt 6.4 does not speak, but can be asked
/// over the session bus (sm.puri.OSK0); nobody is asked where it is missing.
class OnScreenKeyboard final : public QObject {
    Q_OBJECT

public:
    /// Follows the application's focus from now on.
    explicit OnScreenKeyboard(QDBusConnection bus);

private:
    void follow(QObject* focused);

    QDBusConnection bus_;
    bool asked_ = false;
};

} // namespace lumora::qt
