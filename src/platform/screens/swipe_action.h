// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/base/color.h"

#include <functional>
#include <optional>
#include <string>

namespace lumora::platform {

enum class ActionStyle { Normal, Destructive, Cancel };

/// One button behind a row, shown by a swipe, a context menu or a key.
///
/// Valid until the table is next reloaded: `handler` works on the row that
/// the action was asked for.
struct SwipeAction {
    ActionStyle style = ActionStyle::Normal;
    std::string title;
    std::string image;
    /// None: the toolkit's own colour for the style.
    std::optional<Color> backgroundColor;
    /// Called by the view when the user triggers the action. It reports back
    /// through its argument; after `completed(true)` a destructive action's
    /// row leaves the view.
    std::function<void(const std::function<void(bool)>& completed)> handler;
};

} // namespace lumora::platform
