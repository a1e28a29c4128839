// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/screens/table_screen.h"

#include <utility>

namespace lumora::qt {

TableScreen::TableScreen(const std::shared_ptr<platform::TableViewController>& controller,
                         const QString& pageName)
    : TableScreen{controller, controller->tableView(), pageName}
{}

TableScreen::TableScreen(std::shared_ptr<platform::ViewController> controller,
                         platform::TableView& table, const QString& pageName)
    : Screen{std::move(controller), pageName}, table_{dynamic_cast<QtTableView&>(table)}
{}

} // namespace lumora::qt
