// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/navigation_controller.h"
#include "platform/screens/view_controller.h"

#include <functional>
#include <memory>
#include <vector>

namespace lumora::platform {

/// From this width, in points, list and detail stand side by side, and the
/// device counts as a tablet.
inline constexpr double kTwoPaneWidth = 700;

/// Decides what becomes of the detail pane when only one pane fits.
class SplitViewControllerDelegate {
public:
    virtual ~SplitViewControllerDelegate() = default;
    /// True: the detail pane is dropped and the list shows. False: the detail
    /// pane goes on top of the list.
    virtual bool collapseSecondaryViewControllerOntoPrimary(ViewController& secondary,
                                                            ViewController& primary) = 0;
};

/// List and detail, side by side or one over the other.
///
/// Made with both panes; the window collapses and expands it as its width
/// passes kTwoPaneWidth. A screen moves between the panes as it is, so a verb
/// once opened stays open.
class SplitViewController final : public ViewController {
public:
    SplitViewController(std::shared_ptr<ViewController> primary,
                        std::shared_ptr<ViewController> secondary);
    ~SplitViewController() override;

    /// The panes on screen: list and detail, or the list alone.
    std::vector<ViewController*> viewControllers() const;
    bool isCollapsed() const { return collapsed_; }
    void setCollapsed(bool collapsed);

    void setDelegate(SplitViewControllerDelegate* delegate) { delegate_ = delegate; }

    /// Shows `detail` in the second pane, or on top of the list when there is
    /// one pane.
    void showDetailViewController(std::shared_ptr<ViewController> detail);

    /// Shows and hides the list beside the detail.
    BarButton displayModeButtonItem();
    bool isPrimaryHidden() const { return primaryHidden_; }

    /// Called after every change of the panes; one listener.
    void setPaneListener(std::function<void()> listener);

private:
    NavigationController* primaryStack() const;
    void panesChanged();

    std::shared_ptr<ViewController> primary_;
    std::shared_ptr<ViewController> secondary_;
    /// What the second pane shows when nothing was opened.
    std::shared_ptr<ViewController> placeholder_;
    SplitViewControllerDelegate* delegate_ = nullptr;
    std::function<void()> paneListener_;
    bool collapsed_ = false;
    bool primaryHidden_ = false;
};

} // namespace lumora::platform
