// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/verb.h"
#include "platform/base/error.h"

#include <vector>

namespace lumora::platform {
class Database;
}

namespace lumora::data {

/// Sets the distinction of each verb that shares its name with another of the
/// database. An error when the database cannot be asked.
platform::Result<void> distinguishHomographs(platform::Database& database,
                                             const std::vector<VerbPtr>& verbs);

/// Puts the verb in commonest use first; verbs of one class keep their order. An
/// error leaves all as they are.
platform::Result<void> putCommonestFirst(platform::Database& database, std::vector<VerbPtr>& verbs);

} // namespace lumora::data
