// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace lumora::qt {

/// What an HTML text says in lines of plain text; a rule becomes a line of
/// dashes.
QString plainTextOf(const QString& html);

} // namespace lumora::qt
