// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/base/error.h"
#include "verbdb/content.h"

#include <filesystem>

namespace lumora::platform {
class Database;
}

namespace lumora::verbdb {

/// Writes the database under a temporary name beside "path" and gives it its
/// name when it is whole. The same content gives the same bytes.
///
/// Throws std::runtime_error; nothing is left behind then.
void writeDatabase(const Content& content, const std::filesystem::path& path);

/// Writes the same file without the table of forms, and with nothing in the helper
/// tables. For a program that has a table of its own in the place of the forms; it
/// fills the helper tables when it has the time (HelperTables, writeWords). Throws
/// std::runtime_error.
void writeDatabaseWithoutForms(const Content& content, const std::filesystem::path& path);

/// Keeps the words that the look-up finds verbs by and how they sound, which it
/// would make of all forms else.
platform::Result<void> writeWords(platform::Database& database);

} // namespace lumora::verbdb
