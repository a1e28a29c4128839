// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/screens/view_controller.h"

#include <utility>

namespace lumora::platform {

void ViewController::loadViewIfNeeded()
{
    if (!loaded_) {
        loaded_ = true;
        viewDidLoad();
    }
}

bool ViewController::shouldPerformSegue(std::string_view /*identifier*/)
{
    return true;
}

void ViewController::prepareForSegue(const Segue& /*segue*/) {}

void ViewController::setNavigationItem(NavigationItem item)
{
    navigationItem_ = std::move(item);
    if (navigationItemListener_) {
        navigationItemListener_();
    }
}

void ViewController::setNavigationItemListener(std::function<void()> listener)
{
    navigationItemListener_ = std::move(listener);
}

void ViewController::setSplitViewController(SplitViewController* splitView)
{
    splitViewController_ = splitView;
}

} // namespace lumora::platform
