// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/desktop/settings_portal.h"

#include "qt/desktop/portal.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QMap>
#include <QVariantMap>

#include <algorithm>
#include <cmath>
#include <utility>

namespace lumora::qt {

namespace {

using SettingGroups = QMap<QString, QVariantMap>;

const QString kSettingsInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString kAppearance = QStringLiteral("org.freedesktop.appearance");
const QString kDesktop = QStringLiteral("org.gnome.desktop.interface");
constexpr uint kPrefersDark = 1;

/// `appearance` with one setting put in; values of a wrong kind change nothing.
Appearance with(Appearance appearance, const QString& group, const QString& key,
                const QVariant& value)
{
    if (group == kAppearance && key == QLatin1String("color-scheme")) {
        if (value.canConvert<uint>()) {
            appearance.dark = value.toUInt() == kPrefersDark;
        }
    } else if (group == kDesktop && key == QLatin1String("text-scaling-factor")) {
        bool isNumber = false;
        const double scale = value.toDouble(&isNumber);
        if (isNumber && std::isfinite(scale)) {
            appearance.textScale = std::clamp(scale, kSmallestTextScale, kLargestTextScale);
        }
    } else if (group == kDesktop && key == QLatin1String("enable-animations")) {
        if (value.typeId() == QMetaType::Bool) {
            appearance.reducedMotion = !value.toBool();
        }
    }
    return appearance;
}

} // namespace

SettingsPortal::SettingsPortal(QDBusConnection bus)
    : bus_{std::move(bus)},
      restarts_{QString::fromLatin1(portal::kService), bus_,
                QDBusServiceWatcher::WatchForRegistration}
{
    if (!bus_.isConnected()) {
        return;
    }
    qDBusRegisterMetaType<SettingGroups>();
    // The slot below is looked up by the names of its types.
    qRegisterMetaType<QDBusVariant>();
    // Before the reading, so that no change falls in between.
    bus_.connect(QString::fromLatin1(portal::kService), QString::fromLatin1(portal::kPath),
                 kSettingsInterface, QStringLiteral("SettingChanged"), this,
                 SLOT(settingChanged(QString, QString, QDBusVariant)));
    connect(&restarts_, &QDBusServiceWatcher::serviceRegistered, this, &SettingsPortal::read);
    read();
}

void SettingsPortal::read()
{
    auto call = QDBusMessage::createMethodCall(QString::fromLatin1(portal::kService),
                                               QString::fromLatin1(portal::kPath),
                                               kSettingsInterface, QStringLiteral("ReadAll"));
    call << QStringList{kAppearance, kDesktop};
    reading_ = std::make_unique<QDBusPendingCallWatcher>(bus_.asyncCall(call));
    connect(reading_.get(), &QDBusPendingCallWatcher::finished, this, &SettingsPortal::takeAnswer);
}

void SettingsPortal::takeAnswer()
{
    if (!reading_ || !reading_->isFinished()) {
        return;
    }
    const QDBusPendingReply<SettingGroups> reply = *reading_;
    // It may be the sender of the signal that is being handled.
    reading_.release()->deleteLater();
    if (reply.isError()) {
        return;
    }
    auto appearance = appearance_;
    const auto groups = reply.value();
    for (auto group = groups.begin(); group != groups.end(); ++group) {
        for (auto value = group->begin(); value != group->end(); ++value) {
            appearance = with(appearance, group.key(), value.key(), *value);
        }
    }
    take(appearance);
}

void SettingsPortal::settingChanged(const QString& group, const QString& key,
                                    const QDBusVariant& value)
{
    take(with(appearance_, group, key, value.variant()));
}

void SettingsPortal::take(const Appearance& appearance)
{
    if (appearance != appearance_) {
        appearance_ = appearance;
        emit appearanceChanged();
    }
}

} // namespace lumora::qt
