// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/verb.h"

#include <string>
#include <string_view>
#include <vector>

namespace lumora::data {

/// The verbs that a typed name means, homographs all. The closest reading that
/// finds any wins: the name as it stands, then "évanouir" for "évanouir (s')",
/// then both without accents.
std::vector<VerbPtr> verbsNamed(std::string_view typed, const std::vector<VerbPtr>& verbs);

/// A few headwords that differ from it by a slip or two, the nearest first.
std::vector<std::string> namesNear(std::string_view typed, const std::vector<VerbPtr>& verbs);

} // namespace lumora::data
