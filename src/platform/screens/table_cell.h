// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/animated_view.h"
#include "platform/screens/line_style.h"

#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace lumora::platform {

struct SwitchControl {
    bool on = false;
};

struct SegmentedControl {
    std::vector<std::string> titles;
    int selected = 0;
};

/// A round indicator with a play button in it.
struct PlayControl {
    std::shared_ptr<AnimatedView> indicator;
};

enum class CellAccessory { None, DisclosureIndicator };

/// What one row shows. A value: the view keeps no tie to the controller.
struct TableCell {
    std::string reuseIdentifier;
    std::string text;
    /// What tells the text from an equal one in another row; stands beside it
    /// in brackets. Empty for none.
    std::string note;
    std::string detailText;
    LineStyle lineStyle;
    /// Name of an image of ours; empty for none.
    std::string image;
    std::string accessibilityIdentifier;
    /// What a screen reader says; empty: the text.
    std::string accessibilityLabel;
    bool selectable = true;
    CellAccessory accessory = CellAccessory::None;
    std::variant<std::monostate, SwitchControl, SegmentedControl, PlayControl> control;
};

} // namespace lumora::platform
