// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "navigation/options_table_view_controller.h"
#include "qt/screens/table_screen.h"

#include <QColor>

namespace lumora::qt {

/// The options: a table with a header above it.
class OptionsScreen final : public lumora::qt::TableScreen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the registry")
    // The screen is loaded by the time it gets its page.
    Q_PROPERTY(QString icon READ icon CONSTANT)
    Q_PROPERTY(double iconRadius READ iconRadius CONSTANT)
    Q_PROPERTY(double iconBorderWidth READ iconBorderWidth CONSTANT)
    Q_PROPERTY(QColor iconBorderColor READ iconBorderColor CONSTANT)
    Q_PROPERTY(QString appTitle READ appTitle CONSTANT)
    Q_PROPERTY(QString copyright READ copyright CONSTANT)
    Q_PROPERTY(QString websiteTitle READ websiteTitle CONSTANT)
    Q_PROPERTY(QString supportTitle READ supportTitle CONSTANT)

public:
    explicit OptionsScreen(std::shared_ptr<navigation::OptionsTableViewController> controller);

    QString icon() const;
    double iconRadius() const { return options_->header.iconImageView.cornerRadius; }
    double iconBorderWidth() const { return options_->header.iconImageView.borderWidth; }
    QColor iconBorderColor() const;
    QString appTitle() const;
    QString copyright() const;
    QString websiteTitle() const;
    QString supportTitle() const;
    /// The row of the table that the screen opens at; -1 for its beginning.
    Q_INVOKABLE int firstRow() const;

    Q_INVOKABLE void openWebsite() { options_->openWebsite(); }
    Q_INVOKABLE void sendSupportEmail() { options_->sendSupportEmail(); }

private:
    std::shared_ptr<navigation::OptionsTableViewController> options_;
};

} // namespace lumora::qt
