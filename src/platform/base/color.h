// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace lumora::platform {

/// sRGB components and opacity, each 0 to 1.
struct Color {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;

    bool operator==(const Color&) const = default;
};

inline constexpr Color kWhiteColor{1, 1, 1, 1};
inline constexpr Color kRedColor{1, 0, 0, 1};
inline constexpr Color kLightGrayColor{2.0 / 3, 2.0 / 3, 2.0 / 3, 1};
inline constexpr Color kDarkGrayColor{1.0 / 3, 1.0 / 3, 1.0 / 3, 1};
/// For text on dark ground.
inline constexpr Color kLightTextColor{1, 1, 1, 0.6};

} // namespace lumora::platform
