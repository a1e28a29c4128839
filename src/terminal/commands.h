// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/base/error.h"

namespace lumora::terminal {

struct Arguments;
struct Output;
class Session;

// Each prints only when all is well, but for conjugate, which tells of a verb of
// standard input that is unknown and goes on. The error's message is for the
// user; an empty one says that all has been told.

platform::Result<void> conjugate(Session& session, const Arguments& arguments,
                                 const Output& output);
platform::Result<void> about(Session& session, const Arguments& arguments, const Output& output);
platform::Result<void> lookUp(Session& session, const Arguments& arguments, const Output& output);
platform::Result<void> search(Session& session, const Arguments& arguments, const Output& output);
platform::Result<void> exportDocument(Session& session, const Arguments& arguments,
                                      const Output& output);
// Of the application's own database, for the file that the arguments name.
platform::Result<void> backUp(Session& session, const Arguments& arguments, const Output& output);
platform::Result<void> restore(Session& session, const Arguments& arguments, const Output& output);

} // namespace lumora::terminal
