// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "navigation/product_list.h"
#include "platform/screens/table_view_controller.h"

#include <vector>

namespace lumora::navigation {

/// The maker's other applications, each with its page in the store. The view
/// shows a cell's text as the name and its image as the icon.
class MoreAppsTableViewController final : public platform::TableViewController {
public:
    using TableViewController::TableViewController;

    /// The catalogue without the running application; filled on load.
    std::vector<Product> otherApps;

    void close();

    int numberOfSections() override;
    int numberOfRowsInSection(int section) override;
    platform::TableCell cellForRow(platform::IndexPath path) override;
    void didSelectRow(platform::IndexPath path) override;

protected:
    void viewDidLoad() override;
};

} // namespace lumora::navigation
