// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/alert.h"
#include "platform/screens/index_path.h"
#include "platform/screens/view_controller.h"

#include <functional>
#include <memory>
#include <optional>
#include <string_view>

namespace lumora::platform {

/// Takes the user from one screen to another and asks questions on top of one.
class Presenter {
public:
    virtual ~Presenter() = default;

    /// Asks `source` whether it may, makes the destination, lets `source`
    /// prepare it, and shows it. `sender` is the row that was tapped, if one was.
    virtual void performSegue(ViewController& source, std::string_view identifier,
                              std::optional<IndexPath> sender) = 0;
    /// As `performSegue`, but shows the screen small and over `source`, until
    /// the user opens it or closes it.
    virtual void previewSegue(ViewController& source, std::string_view identifier,
                              std::optional<IndexPath> sender) = 0;
    /// Shows a screen over `on` until it is dismissed.
    virtual void present(ViewController& on, std::shared_ptr<ViewController> screen) = 0;
    virtual void presentAlert(ViewController& on, const Alert& alert) = 0;
    /// `anchor`: the row the sheet rises from.
    virtual void presentActionSheet(ViewController& on, const ActionSheet& sheet,
                                    IndexPath anchor) = 0;
    /// Takes the screen presented on top away; `completed` runs once it has gone.
    virtual void dismiss(ViewController& presented, std::function<void()> completed) = 0;
};

} // namespace lumora::platform
