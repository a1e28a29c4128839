// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "qt/screens/screen.h"

#include <memory>
#include <vector>

namespace lumora::qt {

/// Keeps one QML-side screen for each controller. A screen that is in no stack any
/// more is destroyed with the last page that shows it.
class ScreenRegistry final : public QObject {
    Q_OBJECT

public:
    ScreenRegistry();
    ~ScreenRegistry() override;

    Screen* screenFor(const std::shared_ptr<platform::ViewController>& controller);
    /// Forgets the screens of all other controllers but their children.
    void retainOnly(const std::vector<std::shared_ptr<platform::ViewController>>& controllers);

    std::size_t size() const { return screens_.size(); }

signals:
    /// Of any screen.
    void childrenChanged();

private:
    struct Entry {
        std::unique_ptr<Screen> screen;
        bool retired = false;
    };

    std::unique_ptr<Screen> makeScreen(const std::shared_ptr<platform::ViewController>& controller);
    void dropRetired();

    std::vector<Entry> screens_;
};

} // namespace lumora::qt
