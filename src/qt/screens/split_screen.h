// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/pane_stacks.h"
#include "platform/screens/visibility_tracker.h"
#include "qt/screens/screen_registry.h"

#include <QList>
#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <memory>

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

    bool collapsed() const { return stacks_.split().isCollapsed(); }
    bool primaryHidden() const { return stacks_.split().isPrimaryHidden(); }
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
    Q_INVOKABLE bool back() { return stacks_.back(); }
    /// Brings the home screen into view, whatever hides it.
    Q_INVOKABLE void backToHome() { stacks_.backToHome(); }

    std::size_t screenCount() const { return registry_.size(); }

signals:
    void changed();

private:
    using Controllers = platform::PaneStacks::Screens;

    void synchronize();
    void synchronizeModals(Controllers& all, Controllers& visible);
    QList<QObject*> wrappersOf(const Controllers& controllers);

    QtDevice& device_;
    ModalStack& modals_;
    QtPreview& preview_;
    ScreenRegistry registry_;
    platform::VisibilityTracker visibility_;
    QList<QObject*> primary_;
    QList<QObject*> secondary_;
    bool shown_ = false;
    bool changing_ = false;
    bool rearranging_ = false;
    /// The first to go: what goes after it is not to be drawn.
    platform::PaneStacks stacks_;
};

} // namespace lumora::qt
