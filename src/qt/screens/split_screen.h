// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/split_view_controller.h"
#include "platform/screens/visibility_tracker.h"
#include "qt/screens/screen_registry.h"

#include <QList>
#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <vector>

namespace lumora::qt {

class HomeScreen;
class ModalStack;
class QtDevice;
class QtPreview;

/// The window's panes for QML: the stack of screens in each, and of the screens
/// over them. It hears every change of the controllers' stacks and tells the
/// screens when they come and go. GUI thread only.
class SplitScreen final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the window")
    Q_PROPERTY(bool collapsed READ collapsed NOTIFY changed)
    Q_PROPERTY(bool primaryHidden READ primaryHidden NOTIFY changed)
    Q_PROPERTY(QList<QObject*> primary READ primary NOTIFY changed)
    Q_PROPERTY(QList<QObject*> secondary READ secondary NOTIFY changed)
    Q_PROPERTY(lumora::qt::HomeScreen* home READ home NOTIFY changed)

public:
    /// The device, the modals and the preview must outlive this.
    SplitScreen(std::shared_ptr<platform::SplitViewController> split, QtDevice& device,
                ModalStack& modals, QtPreview& preview);
    ~SplitScreen() override;

    bool collapsed() const { return split_->isCollapsed(); }
    bool primaryHidden() const { return split_->isPrimaryHidden(); }
    /// From the bottom of the stack to its top; the second pane's are empty
    /// while there is one pane.
    QList<QObject*> primary() const { return primary_; }
    QList<QObject*> secondary() const { return secondary_; }
    /// At the bottom of the first pane; null before the screens are shown.
    HomeScreen* home() const;

    /// The window is as wide as this now; the first call shows the screens.
    Q_INVOKABLE void setWidth(double points);
    /// Whether a change under way comes from there being more or fewer panes.
    Q_INVOKABLE bool isRearranging() const { return rearranging_; }
    /// Takes the top screen away; false when there is none to go back from.
    Q_INVOKABLE bool back();
    /// Brings the home screen into view, whatever hides it.
    Q_INVOKABLE void backToHome();

    std::size_t screenCount() const { return registry_.size(); }

signals:
    void changed();

private:
    using Controllers = std::vector<std::shared_ptr<platform::ViewController>>;

    void synchronize();
    /// The screens of a container, or the screen itself.
    Controllers screensOf(const std::shared_ptr<platform::ViewController>& container);
    Controllers flatten(platform::NavigationController& stack);
    void synchronizeModals(Controllers& all, Controllers& visible);
    QList<QObject*> wrappersOf(const Controllers& controllers);

    std::shared_ptr<platform::SplitViewController> split_;
    QtDevice& device_;
    ModalStack& modals_;
    QtPreview& preview_;
    ScreenRegistry registry_;
    platform::VisibilityTracker visibility_;
    QList<QObject*> primary_;
    QList<QObject*> secondary_;
    std::vector<std::weak_ptr<platform::ViewController>> listenedStacks_;
    bool shown_ = false;
    bool changing_ = false;
    bool rearranging_ = false;
};

} // namespace lumora::qt
