// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/services.h"
#include "platform/table_view.h"
#include "platform/view_controller.h"
#include "platform/view_factory.h"

#include <memory>

namespace lumora::platform {

/// A screen that is one table.
class TableViewController : public ViewController, public TableDataSource {
public:
    explicit TableViewController(const Services& services);
    ~TableViewController() override;

    TableView& tableView() { return *tableView_; }

protected:
    const Services& services() const { return services_; }

private:
    Services services_;
    std::unique_ptr<TableView> tableView_;
};

} // namespace lumora::platform
