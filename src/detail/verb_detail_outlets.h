// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/base/color.h"

#include <string>
#include <vector>

/// The views of the detail screen that are values here.
namespace lumora::detail {

/// The centred text of a detail screen without a verb.
struct SelectVerbLabel {
    std::string text;
    bool hidden = false;
    platform::Color backgroundColor{0.99, 0.99, 0.99, 1};
    platform::Color borderColor{0.8, 0.8, 0.8, 1};
    double cornerRadius = 5;
    double borderWidth = 1;
};

struct VerbTypeSegmentedControl {
    std::vector<std::string> titles;
    int selected = 0;
    bool hidden = false;
};

struct Toolbar {
    bool hidden = false;
};

} // namespace lumora::detail
