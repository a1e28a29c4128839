// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/screens/table_screen.h"

namespace lumora::qt {

TableScreen::TableScreen(const std::shared_ptr<platform::TableViewController>& controller,
                         const QString& pageName)
    : Screen{controller, pageName}, table_{dynamic_cast<QtTableView&>(controller->tableView())}
{}

} // namespace lumora::qt
