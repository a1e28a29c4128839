// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/notification_center.h"
#include "platform/services.h"
#include "platform/view_controller.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace lumora::lists {
class InterstitialTableViewController;
class VerbListTableViewController;
} // namespace lumora::lists

namespace lumora::platform {
class DatabaseQueue;
}

namespace lumora::navigation {

/// The tags of the tab bar's items.
enum class Tab { List = 0, Favourites = 1, History = 2 };

struct TabBarItem {
    Tab tag = Tab::List;
    std::string title;
    std::string image;
};

struct TabBar {
    std::vector<TabBarItem> items;
    Tab selectedItem = Tab::List;
};

/// The first screen: the list screens behind a tab bar.
///
/// A list screen is made when it is first shown and kept. GUI thread only.
class HomeViewController final : public platform::ViewController {
public:
    explicit HomeViewController(const platform::Services& services);
    ~HomeViewController() override;

    /// The shared queue, handed on to every list. Not owned; null when the
    /// database could not be opened.
    platform::DatabaseQueue* queue = nullptr;

    TabBar tabBar;
    /// The list on show; null before the screen is built.
    const std::shared_ptr<platform::ViewController>& currentChild() const { return currentChild_; }

    /// The view's wish to hear of a changed tab bar or child; one listener.
    void setOutletListener(std::function<void()> listener);

    void didSelectItem(Tab tag);

    void viewWillAppear() override;
    void setSplitViewController(platform::SplitViewController* splitView) override;

protected:
    void viewDidLoad() override;

private:
    void openTab(const platform::Notification& notification);
    void showTab(Tab tab);
    void buildTabBarItems();
    std::shared_ptr<lists::InterstitialTableViewController> listScreen();
    void sendCrashReportValues();
    void outletsChanged();

    platform::Services services_;
    TabBarItem listTabBarItem_;
    std::shared_ptr<lists::InterstitialTableViewController> list_;
    std::shared_ptr<platform::ViewController> currentChild_;
    std::function<void()> outletListener_;
    platform::NotificationCenter::Subscription tabOpen_;
};

} // namespace lumora::navigation
