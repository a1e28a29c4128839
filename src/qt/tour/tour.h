// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>

namespace lumora::qt {

/// Drives the real application through every screen, in both sizes and both
/// themes, and writes a picture of each into `folder`. It has files of its own,
/// so nothing of a person's changes. The exit status: 0 when every picture was
/// written.
int runTour(const std::filesystem::path& folder, const std::filesystem::path& shareFolder);

} // namespace lumora::qt
