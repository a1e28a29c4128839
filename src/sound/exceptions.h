// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "sound/letters.h"

#include <string_view>

namespace lumora::sound {

/// Writes the stems that the rules of spelling would misread as they are said,
/// by the table content/pronunciation.tsv.
Letters respelled(const Letters& word, std::u32string_view infinitive);

} // namespace lumora::sound
