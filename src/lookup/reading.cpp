// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/reading.h"

namespace lumora::lookup {

std::string_view nameOf(MatchKind kind)
{
    switch (kind) {
    case MatchKind::Exact:
        return "exact";
    case MatchKind::Folded:
        return "folded";
    case MatchKind::Phrase:
        return "phrase";
    case MatchKind::Meaning:
        return "meaning";
    case MatchKind::Typo:
        return "slip";
    case MatchKind::Sound:
        return "sound";
    case MatchKind::PartOfText:
        return "inside";
    }
    return {};
}

} // namespace lumora::lookup
