// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/screens/options_screen.h"

#include "qt/base/color_conversion.h"
#include "qt/base/text_conversion.h"

#include <utility>

namespace lumora::qt {

OptionsScreen::OptionsScreen(std::shared_ptr<navigation::OptionsTableViewController> controller)
    : TableScreen{controller, QStringLiteral("OptionsPage")}, options_{std::move(controller)}
{}

int OptionsScreen::firstRow() const
{
    return options_->firstRow ? table()->model()->listRow(*options_->firstRow) : -1;
}

QString OptionsScreen::icon() const
{
    return toQString(options_->header.iconImageView.image);
}

QColor OptionsScreen::iconBorderColor() const
{
    return toQColor(options_->header.iconImageView.borderColor);
}

QString OptionsScreen::appTitle() const
{
    return toQString(options_->header.titleLabel);
}

QString OptionsScreen::copyright() const
{
    return toQString(options_->header.copyrightLabel);
}

QString OptionsScreen::websiteTitle() const
{
    return toQString(options_->header.openWebsiteButton);
}

QString OptionsScreen::supportTitle() const
{
    return toQString(options_->header.emailSupportButton);
}

} // namespace lumora::qt
