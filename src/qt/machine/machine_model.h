// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace lumora::qt {

/// What the machine is sold as, told by its firmware; none where that says
/// nothing. `sys` is where the kernel shows its devices.
std::optional<std::string> machineModel(const std::filesystem::path& sys = "/sys");

} // namespace lumora::qt
