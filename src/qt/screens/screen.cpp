// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/screens/screen.h"

#include "qt/base/text_conversion.h"

#include <QQmlEngine>

#include <utility>

namespace lumora::qt {

namespace {

QVariant toVariant(const platform::BarButton& button)
{
    return QVariant::fromValue(ScreenButton{toQString(button.identifier), toQString(button.title),
                                            toQString(button.image), button.enabled});
}

} // namespace

Screen::Screen(std::shared_ptr<platform::ViewController> controller, const QString& pageName)
    : controller_{std::move(controller)}, page_{QStringLiteral("qrc:/Lumora/%1.qml").arg(pageName)}
{
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
    controller_->setNavigationItemListener([this] { emit navigationItemChanged(); });
}

Screen::~Screen()
{
    controller_->setNavigationItemListener({});
}

QString Screen::title() const
{
    return toQString(controller_->navigationItem().title);
}

QVariantList Screen::leftButtons() const
{
    QVariantList buttons;
    if (const auto& button = controller_->navigationItem().leftBarButton) {
        buttons.append(toVariant(*button));
    }
    return buttons;
}

QVariantList Screen::rightButtons() const
{
    QVariantList buttons;
    for (const auto& button : controller_->navigationItem().rightBarButtons) {
        buttons.append(toVariant(button));
    }
    return buttons;
}

void Screen::press(const QString& identifier)
{
    const auto& item = controller_->navigationItem();
    auto buttons = item.rightBarButtons;
    if (item.leftBarButton) {
        buttons.push_back(*item.leftBarButton);
    }
    // Out of the copy: the action may change the bar.
    for (const auto& button : buttons) {
        if (toQString(button.identifier) == identifier) {
            if (button.enabled && button.action) {
                button.action();
            }
            return;
        }
    }
}

void Screen::attach(QObject* page)
{
    ++pages_;
    connect(page, &QObject::destroyed, this, &Screen::pageGone);
}

void Screen::detach(QObject* page)
{
    if (disconnect(page, &QObject::destroyed, this, &Screen::pageGone)) {
        pageGone();
    }
}

void Screen::pageGone()
{
    if (--pages_ == 0) {
        emit detached();
    }
}

} // namespace lumora::qt
