// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "verbdb/content.h"

#include <iosfwd>

namespace lumora::verbdb {

/// Prints how much the content holds and where it has gaps.
void printReport(const Content& content, std::ostream& output);

} // namespace lumora::verbdb
