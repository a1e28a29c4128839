// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/screens/table_view_controller.h"

namespace lumora::platform {

TableViewController::TableViewController(const Services& services)
    : services_{services}, tableView_{services.views.makeTableView(*this)}
{}

TableViewController::~TableViewController() = default;

} // namespace lumora::platform
