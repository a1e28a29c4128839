// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace lumora::qt {

/// Whether the desktop's lists name an installed program for addresses of
/// `scheme`. Reads files.
bool hasUrlHandler(const std::string& scheme);

/// Whether this program runs as a Flatpak or a Snap.
bool isSandboxed();

} // namespace lumora::qt
