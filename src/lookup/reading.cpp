// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/reading.h"

namespace lumora::lookup {

std::string_view nameOf(Way way)
{
    switch (way) {
    case Way::Exact:
        return "exact";
    case Way::Folded:
        return "folded";
    case Way::Phrase:
        return "phrase";
    case Way::Meaning:
        return "meaning";
    case Way::Slip:
        return "slip";
    case Way::Sound:
        return "sound";
    case Way::Inside:
        return "inside";
    }
    return {};
}

} // namespace lumora::lookup
