// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace lumora::qt {

inline constexpr double kSmallestTextScale = 0.8;
inline constexpr double kLargestTextScale = 2;

/// How the person wants programs to look, as set on the desktop.
struct Appearance {
    bool dark = false;
    /// kSmallestTextScale to kLargestTextScale.
    double textScale = 1;
    bool reducedMotion = false;

    bool operator==(const Appearance&) const = default;
};

} // namespace lumora::qt
