// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/table_view_controller.h"

namespace lumora::navigation {

/// What the drawer asks of the screen that it slides over.
class HomeViewControllerDelegate {
public:
    virtual ~HomeViewControllerDelegate() = default;
    virtual void showOptions() = 0;
    virtual void showMoreApps() = 0;
    virtual void contactSupport() = 0;
};

/// The side menu with its four destinations. The view draws a cell's image as
/// a template and its text in white, shrunk to the width, on a clear ground.
class NavigationDrawerTableTableViewController final : public platform::TableViewController {
public:
    using TableViewController::TableViewController;

    /// Not owned; may be null.
    HomeViewControllerDelegate* delegate = nullptr;

    int numberOfSections() override;
    int numberOfRowsInSection(int section) override;
    platform::TableCell cellForRow(platform::IndexPath path) override;
    void didSelectRow(platform::IndexPath path) override;
};

} // namespace lumora::navigation
