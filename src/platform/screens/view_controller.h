// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/index_path.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lumora::platform {

class NavigationController;
class SplitViewController;
class ViewController;

/// A button of the bar above a screen.
struct BarButton {
    /// Tells the view and the tests which button it is.
    std::string identifier;
    std::string title;
    std::string image;
    bool enabled = true;
    std::function<void()> action;
};

/// What the bar above a screen shows.
struct NavigationItem {
    std::string title;
    std::optional<BarButton> leftBarButton;
    bool leftItemsSupplementBackButton = false;
    std::vector<BarButton> rightBarButtons;
};

/// A step from one screen to another, before it is shown.
struct Segue {
    std::string identifier;
    ViewController& destination;
    /// The row whose cell asked for it, when one did.
    std::optional<IndexPath> sender;
};

/// One screen's logic. Made by the Storyboard, owned by the container that
/// shows it. GUI thread only.
///
/// `viewDidLoad` runs once, before the screen is first shown. The container
/// calls viewWillAppear, viewDidAppear and, later, viewDidDisappear each time
/// that it shows the screen.
class ViewController {
public:
    ViewController() = default;
    ViewController(const ViewController&) = delete;
    ViewController& operator=(const ViewController&) = delete;
    virtual ~ViewController() = default;

    void loadViewIfNeeded();

    virtual void viewWillAppear() {}
    virtual void viewDidAppear() {}
    virtual void viewDidDisappear() {}

    virtual bool shouldPerformSegue(std::string_view identifier);
    virtual void prepareForSegue(const Segue& segue);

    const NavigationItem& navigationItem() const { return navigationItem_; }
    void setNavigationItem(NavigationItem item);

    /// Called when the navigation item has changed; one listener.
    void setNavigationItemListener(std::function<void()> listener);

    /// The split view around this screen; null outside one.
    SplitViewController* splitViewController() const { return splitViewController_; }
    virtual void setSplitViewController(SplitViewController* splitView);

    /// The stack that this screen is on; null outside one.
    NavigationController* navigationController() const { return navigationController_; }
    /// For the stack: says so when the screen comes and goes.
    void setNavigationController(NavigationController* stack) { navigationController_ = stack; }

protected:
    virtual void viewDidLoad() {}

private:
    bool loaded_ = false;
    NavigationItem navigationItem_;
    std::function<void()> navigationItemListener_;
    SplitViewController* splitViewController_ = nullptr;
    NavigationController* navigationController_ = nullptr;
};

} // namespace lumora::platform
