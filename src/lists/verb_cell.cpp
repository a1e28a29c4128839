// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lists/verb_cell.h"

#include "data/verb.h"
#include "platform/screens/services.h"

namespace lumora::lists {

platform::TableCell verbCell(const data::Verb& verb, const platform::Services& services)
{
    platform::TableCell cell;
    cell.reuseIdentifier = "VerbCell";
    cell.text = verb.french;
    cell.detailText = verb.translation(services.settings, services.device);
    cell.accessibilityIdentifier = verb.french;
    if (verb.isFavourite) {
        cell.image = "ic_favorite_list";
    }
    return cell;
}

} // namespace lumora::lists
