// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/screens/table_view.h"

namespace lumora::platform {

std::optional<std::string> TableDataSource::titleForHeaderInSection(int /*section*/)
{
    return std::nullopt;
}

std::optional<std::string> TableDataSource::titleForFooterInSection(int /*section*/)
{
    return std::nullopt;
}

std::vector<std::string> TableDataSource::sectionIndexTitles()
{
    return {};
}

int TableDataSource::sectionForSectionIndexTitle(std::string_view /*title*/, int /*index*/)
{
    return -1;
}

bool TableDataSource::showsRow(IndexPath /*path*/)
{
    return true;
}

bool TableDataSource::canEditRow(IndexPath /*path*/)
{
    return false;
}

std::vector<SwipeAction> TableDataSource::trailingSwipeActions(IndexPath /*path*/)
{
    return {};
}

void TableDataSource::rowTapped(IndexPath path)
{
    didSelectRow(path);
}

void TableDataSource::didSelectRow(IndexPath /*path*/) {}

void TableDataSource::rowHeld(IndexPath /*path*/) {}

void TableDataSource::accessoryButtonTapped(IndexPath /*path*/) {}

void TableDataSource::switchToggled(IndexPath /*path*/, bool /*on*/) {}

void TableDataSource::segmentChanged(IndexPath /*path*/, int /*segment*/) {}

} // namespace lumora::platform
