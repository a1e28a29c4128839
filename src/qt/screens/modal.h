// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/storyboard.h"
#include "platform/screens/view_controller.h"

#include <QList>
#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <memory>
#include <vector>

namespace lumora::qt {

/// A screen, or a stack of them, over the others: on its way in, there or on
/// its way out. Made and kept by the ModalStack.
class Modal final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the stack of modals")
    Q_PROPERTY(bool sideMenu READ isSideMenu CONSTANT)
    Q_PROPERTY(QList<QObject*> screens READ screens NOTIFY screensChanged)
    Q_PROPERTY(bool leaving READ isLeaving NOTIFY leavingChanged)

public:
    using Completion = std::function<void()>;

    Modal(std::shared_ptr<platform::ViewController> controller, platform::SegueStyle style);

    const std::shared_ptr<platform::ViewController>& controller() const { return controller_; }
    bool isSideMenu() const { return style_ == platform::SegueStyle::SideMenu; }
    bool isLeaving() const { return leaving_; }
    /// Whether the screen is this one or one in its stack.
    bool holds(const platform::ViewController& screen) const;

    /// From the bottom of its stack to the top.
    QList<QObject*> screens() const { return screens_; }
    void setScreens(QList<QObject*> screens);

    /// Starts on the way out. It has gone when its page says so, and at once
    /// where no page shows it.
    void leave(Completion completed);
    std::vector<Completion> takeCompletions();

    /// The user wants to leave: one step back in the stack, or by the screen's
    /// own button for it.
    Q_INVOKABLE void close();
    /// A page shows this from now on.
    Q_INVOKABLE void attach() { attached_ = true; }
    /// The page has gone out of sight.
    Q_INVOKABLE void finish();

signals:
    void screensChanged();
    void leavingChanged();
    /// The screen has no button of its own that closes it.
    void dismissRequested();
    void gone();

private:
    std::shared_ptr<platform::ViewController> controller_;
    platform::SegueStyle style_;
    QList<QObject*> screens_;
    std::vector<Completion> completions_;
    bool attached_ = false;
    bool leaving_ = false;
};

} // namespace lumora::qt
