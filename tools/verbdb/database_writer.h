// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "verbdb/content.h"

#include <filesystem>

namespace lumora::verbdb {

/// Writes the database under a temporary name beside "path" and gives it its
/// name when it is whole. The same content gives the same bytes.
///
/// Throws std::runtime_error; nothing is left behind then.
void writeDatabase(const Content& content, const std::filesystem::path& path);

} // namespace lumora::verbdb
