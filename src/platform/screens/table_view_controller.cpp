// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/screens/table_view_controller.h"

#include "platform/machine/bundle.h"
#include "platform/screens/navigation_controller.h"
#include "platform/screens/presenter.h"

#include <utility>

namespace lumora::platform {

TableViewController::TableViewController(const Services& services)
    : services_{services}, tableView_{services.views.makeTableView(*this)}
{}

TableViewController::~TableViewController() = default;

void TableViewController::addDoneButton(std::function<void()> action)
{
    auto item = navigationItem();
    item.rightBarButtons = {{.identifier = "done",
                             .title = localizedString(services_.bundle, "common.done"),
                             .image = {},
                             .enabled = true,
                             .action = std::move(action)}};
    setNavigationItem(std::move(item));
}

void TableViewController::dismiss(std::function<void()> completed)
{
    ViewController* stack = navigationController();
    services_.presenter.dismiss(stack != nullptr ? *stack : *this, std::move(completed));
}

} // namespace lumora::platform
