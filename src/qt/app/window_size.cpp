// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/app/window_size.h"

namespace lumora::qt {

namespace {

constexpr QSize kTwoPanes{1100, 760};
constexpr QSize kOnePane{390, 844};
/// Screens narrower than this have no room for two panes beside anything else.
constexpr int kRoomForTwoPanes = 960;
/// What a desktop puts around a window; its title is the most of it.
constexpr QSize kFrame{8, 44};
constexpr QSize kLeast{280, 360};

} // namespace

QSize firstWindowSize(const QSize& available, std::optional<QSize> remembered)
{
    const QSize wished =
        remembered.value_or(available.width() < kRoomForTwoPanes ? kOnePane : kTwoPanes);
    return wished.boundedTo(available - kFrame).expandedTo(kLeast);
}

} // namespace lumora::qt
