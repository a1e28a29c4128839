// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>

namespace lumora::text {

/// Whether a pronoun stands right before its form, without a blank: "j'", with either
/// apostrophe.
bool isElided(std::string_view pronoun);

/// A pronoun as it stands before a form: "je " with a blank, "j'" without one,
/// and nothing for no pronoun.
std::string beforeForm(std::string_view pronoun);

} // namespace lumora::text
