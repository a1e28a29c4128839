// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "detail/verb_detail_table_view_controller.h"
#include "platform/base/error.h"

#include <memory>
#include <string_view>
#include <vector>

namespace lumora::terminal {

class Session;

/// A detail screen, built, for each verb that the name means. A name that
/// means none is an error that tells what it may have been meant for.
platform::Result<std::vector<std::unique_ptr<detail::VerbDetailTableViewController>>>
loadedVerbs(Session& session, std::string_view name);

} // namespace lumora::terminal
