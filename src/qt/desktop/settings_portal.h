// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "qt/desktop/appearance.h"

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QObject>

#include <memory>

namespace lumora::qt {

/// The appearance that is set on the desktop, read from its portal without
/// waiting and followed from then on. Without a portal it stays as it is in a
/// fresh Appearance.
class SettingsPortal final : public QObject {
    Q_OBJECT

public:
    explicit SettingsPortal(QDBusConnection bus);

    const Appearance& appearance() const { return appearance_; }
    /// Takes the portal's answer if it is there, ahead of the event loop; never
    /// waits for it.
    void takeAnswer();

signals:
    void appearanceChanged();

private:
    Q_SLOT void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);
    void read();
    void take(const Appearance& appearance);

    QDBusConnection bus_;
    QDBusServiceWatcher restarts_;
    /// What the portal has not answered yet; null when nothing is asked.
    std::unique_ptr<QDBusPendingCallWatcher> reading_;
    Appearance appearance_;
};

} // namespace lumora::qt
