// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

struct sqlite3;

namespace lumora::platform {

/// Gives the connection, for good, a LIKE with the built-in one's answers that
/// reads its pattern once a statement. It also takes a resident table's pointers,
/// and answers then whether any of the packed texts is like the pattern.
///
/// When it fails the connection keeps the built-in LIKE.
void registerQuickLike(sqlite3* connection);

} // namespace lumora::platform
