// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/base/error.h"

#include <cstdint>

namespace lumora::platform {
class Database;
}

namespace lumora::data {

/// Puts the verb on top of the history and cuts the history to its 51 newest
/// rows. `timestamp`: seconds since 2001-01-01 00:00:00 UTC. Ends at the first
/// statement that fails; the connection knows why.
platform::Result<void> recordInHistory(platform::Database& database, std::int64_t verbId,
                                       double timestamp);

/// Only cuts the history.
platform::Result<void> trimHistory(platform::Database& database);

} // namespace lumora::data
