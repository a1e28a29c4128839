// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

#include <tl/expected.hpp>

namespace lumora::platform {

/// Why an operation on the machine failed: a sentence for the log and the
/// code of the layer that refused (SQLite's or errno).
struct Error {
    std::string message;
    int code = 0;
};

/// A value, or the reason why there is none. It is never thrown.
template <typename Value>
using Result = tl::expected<Value, Error>;

} // namespace lumora::platform
