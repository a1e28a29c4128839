// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>

namespace lumora::conjugator {

/// Whether je, me, te, se and que lose their e before the word.
bool elides(std::string_view word, bool aspirated);

/// The particle as it stands before the word: "je ", "j'".
std::string elided(std::string_view particle, std::string_view word, bool aspirated);

} // namespace lumora::conjugator
