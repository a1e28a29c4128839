// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>

namespace lumora::text {

/// A pronoun as it stands before a form: "je " with a blank, "j'" without one,
/// and nothing for no pronoun.
std::string beforeForm(std::string_view pronoun);

} // namespace lumora::text
