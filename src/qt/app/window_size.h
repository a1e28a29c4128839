// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QSize>

#include <optional>

namespace lumora::qt {

/// How large a window opens on a screen that has that much free for windows:
/// as it was `remembered`, else with both panes where they fit. With its frame
/// it always fits the screen. All in device-independent pixels.
QSize firstWindowSize(const QSize& available, std::optional<QSize> remembered);

} // namespace lumora::qt
