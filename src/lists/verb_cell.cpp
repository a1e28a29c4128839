// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lists/verb_cell.h"

#include "data/homographs.h"
#include "data/translation_table.h"
#include "platform/machine/crash_reporter.h"
#include "platform/screens/services.h"
#include "platform/storage/database.h"

namespace lumora::lists {

namespace {

bool translatesIntoFrench(const platform::Services& services)
{
    return data::listLanguage(services.settings, services.device).text == &data::Verb::french;
}

} // namespace

platform::TableCell verbCell(const data::Verb& verb, const platform::Services& services)
{
    platform::TableCell cell;
    cell.reuseIdentifier = "VerbCell";
    cell.text = verb.french;
    cell.detailText = verb.translation(services.settings, services.device);
    if (!verb.distinction.empty() && translatesIntoFrench(services)) {
        cell.note = verb.distinction;
    }
    cell.accessibilityIdentifier = verb.french;
    if (verb.isFavourite) {
        cell.image = "ic_favorite_list";
    }
    return cell;
}

void distinguishHomographs(const std::vector<data::VerbPtr>& verbs, platform::Database& database,
                           const platform::Services& services)
{
    if (!translatesIntoFrench(services)) {
        return;
    }
    if (!data::distinguishHomographs(database, verbs)) {
        services.crashReporter.logWithFormat(
            "An error occurred when telling verbs of one name apart: %@ (%d)",
            {database.lastErrorMessage(), database.lastErrorCode()});
    }
}

} // namespace lumora::lists
