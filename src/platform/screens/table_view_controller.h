// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/services.h"
#include "platform/screens/table_view.h"
#include "platform/screens/view_controller.h"
#include "platform/screens/view_factory.h"

#include <functional>
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

    /// Puts "Done" on the right of the bar.
    void addDoneButton(std::function<void()> action);
    /// Takes the screen away with the stack that it is on. `completed` runs when
    /// both may be gone; it may be null.
    void dismiss(std::function<void()> completed);

private:
    const Services& services_;
    std::unique_ptr<TableView> tableView_;
};

} // namespace lumora::platform
