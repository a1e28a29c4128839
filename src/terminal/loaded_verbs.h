// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/verb.h"
#include "detail/verb_detail_table_view_controller.h"
#include "platform/base/error.h"
#include "terminal/lookup_command.h"

#include <memory>
#include <string_view>
#include <vector>

namespace lumora::terminal {

class Session;

using Screen = detail::VerbDetailTableViewController;

/// The verbs of the database, read once.
class VerbDirectory {
public:
    static platform::Result<VerbDirectory> read(Session& session);

    /// The verbs that the name means, one at least. A name that means none is an
    /// error that tells what it may have been meant for.
    platform::Result<std::vector<data::VerbPtr>> named(std::string_view name);

    TextReader& reader() { return reader_; }

private:
    explicit VerbDirectory(Session& session) : reader_{session} {}

    std::vector<data::VerbPtr> verbs_;
    TextReader reader_;
};

/// A detail screen, built.
platform::Result<std::unique_ptr<Screen>> loadedScreen(Session& session, const data::VerbPtr& verb);

} // namespace lumora::terminal
