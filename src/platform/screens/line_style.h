// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <vector>

namespace lumora::platform {

/// How a part of a text stands out from the rest.
enum class RunStyle { Plain, Light, Strong, Accent, Underlined };

struct TextRun {
    std::string text;
    RunStyle style = RunStyle::Plain;

    bool operator==(const TextRun&) const = default;
};

/// How a view sets the two texts of a line, and what it adds to them.
struct LineStyle {
    /// The second text in parts of different styles; none where it has one style.
    std::vector<TextRun> runs;
    /// Stands in the place of the first text where there is none.
    std::string hint;
    /// Stands above the first line of a group.
    std::string caption;
    /// What a screen reader says after the line.
    std::string accessibilityHint;
    /// The second text follows the first without a blank.
    bool joined = false;
};

} // namespace lumora::platform
