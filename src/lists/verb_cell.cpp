// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lists/verb_cell.h"

#include "data/homographs.h"
#include "data/translation_table.h"
#include "platform/machine/crash_reporter.h"
#include "platform/storage/database.h"

namespace lumora::lists {

namespace {

bool translatesIntoFrench(const platform::SettingsStore& settings, const platform::Device& device)
{
    return data::listLanguage(settings, device).text == &data::Verb::french;
}

} // namespace

platform::TableCell verbCell(const data::Verb& verb, const platform::SettingsStore& settings,
                             const platform::Device& device)
{
    platform::TableCell cell;
    cell.reuseIdentifier = "VerbCell";
    cell.text = verb.french;
    cell.detailText = verb.translation(settings, device);
    if (!verb.distinction.empty() && translatesIntoFrench(settings, device)) {
        cell.note = verb.distinction;
    }
    cell.accessibilityIdentifier = verb.french;
    if (verb.isFavourite) {
        cell.image = "ic_favorite_list";
    }
    return cell;
}

void distinguishHomographs(const std::vector<data::VerbPtr>& verbs, platform::Database& database,
                           const platform::SettingsStore& settings, const platform::Device& device,
                           platform::CrashReporter& crashReporter)
{
    if (!translatesIntoFrench(settings, device)) {
        return;
    }
    if (!data::distinguishHomographs(database, verbs)) {
        crashReporter.logWithFormat(
            "An error occurred when telling verbs of one name apart: %@ (%d)",
            {database.lastErrorMessage(), database.lastErrorCode()});
    }
}

} // namespace lumora::lists
