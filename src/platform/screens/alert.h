// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/swipe_action.h"

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace lumora::platform {

struct AlertAction {
    std::string title;
    ActionStyle style = ActionStyle::Normal;
    /// May be empty: the action only dismisses.
    std::function<void()> handler;
    /// In a chooser: how it is now.
    bool chosen = false;
};

/// A message that waits for an answer.
struct Alert {
    std::optional<std::string> title;
    std::string message;
    std::vector<AlertAction> actions;
};

/// A message that one button of that title answers.
inline Alert notice(std::optional<std::string> title, std::string message, std::string button)
{
    return {
        std::move(title), std::move(message), {{std::move(button), ActionStyle::Cancel, nullptr}}};
}

/// A choice that rises from what was tapped.
struct ActionSheet {
    std::optional<std::string> title;
    std::vector<AlertAction> actions;
};

} // namespace lumora::platform
