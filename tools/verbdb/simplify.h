// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>

namespace lumora::verbdb {

/// The text as people type it: lower case, without accents, ligatures opened,
/// and without what stands in brackets at the end of a sense.
std::string simplified(std::string_view text);

} // namespace lumora::verbdb
