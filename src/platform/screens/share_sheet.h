// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/view_controller.h"

#include <string>
#include <string_view>

namespace lumora::platform {

/// What is shared, as plain text and as a page to print.
struct ShareItems {
    /// Names the thing, also in file names: a verb's infinitive.
    std::string title;
    std::string text;
    std::string html;
};

/// Offers to copy, save, print or send something.
class ShareSheet {
public:
    virtual ~ShareSheet() = default;
    /// Shows the offers over `on`, on a wide screen beside its bar button of
    /// the identifier `anchor`.
    virtual void present(ViewController& on, ShareItems items, std::string_view anchor) = 0;
};

} // namespace lumora::platform
