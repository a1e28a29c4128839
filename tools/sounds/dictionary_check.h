// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "sounds/spoken_content.h"

#include <filesystem>
#include <iosfwd>
#include <vector>

namespace lumora::sounds {

/// Compares the forms with those of a dictionary: infinitive, form and IPA in
/// columns, several pronunciations parted by "|".
///
/// The table of disagreements says where ours differs on purpose. Every other
/// difference is printed: "letter" where e and ɛ, o and ɔ, a and ɑ, ø and œ, ɥ
/// and y, or an ə make it, "sound" for the rest. Throws conjugator::TableError
/// on a bad table. True when both shares are reached.
bool agreesWithDictionary(const std::vector<SpokenVerb>& verbs,
                          const std::filesystem::path& dictionary,
                          const std::filesystem::path& disagreements, std::ostream& output);

} // namespace lumora::sounds
