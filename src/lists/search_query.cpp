// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lists/search_query.h"

#include "data/translation_table.h"
#include "lists/sort_column.h"
#include "platform/storage/settings_store.h"
#include "settings/search_from.h"
#include "settings/setting_keys.h"
#include "text/text.h"

namespace lumora::lists {

SearchQuery makeSearchQuery(std::string_view text, const platform::SettingsStore& settings,
                            const platform::Device& device)
{
    SearchQuery query;
    query.text = text::replaced(std::string{text}, "\u2019", "'");

    const auto& language = data::listLanguage(settings, device);
    const std::string order{sortsByFrench(settings) ? "simplified_french"
                                                    : language.simplifiedColumn};
    const bool fromStart = settings::searchesFromStart(settings);
    query.pattern = fromStart ? query.text + "%" : "%" + query.text + "%";

    std::string condition = "french LIKE ? OR simplified_french LIKE ?";
    query.placeholders = 2;
    if (settings.boolForKey(settings::kIncludeEnglish)) {
        condition += " OR ";
        condition += language.column;
        condition += " LIKE ? OR ";
        condition += language.simplifiedColumn;
        condition += " LIKE ?";
        query.placeholders += 2;
    }
    std::string join;
    std::string grouping;
    query.searchesForms =
        platform::boolObjectForKey(settings, settings::kIncludeConjugations).value_or(false);
    if (query.searchesForms) {
        condition += " OR conjugation.verb like ?";
        query.placeholders += 1;
        join = "LEFT OUTER JOIN conjugation ON verb._id = conjugation.verbid";
        grouping = "GROUP BY verb._id";
    }

    // A position of 0 makes index_letter empty; nobody reads it here.
    query.statement =
        "SELECT verb._id, english, lower(french) as french, simplified_french, german, "
        "simplified_german, spanish, simplified_spanish, dutch, simplified_dutch, italian, "
        "simplified_italian, portuguese, simplified_portuguese, substr(" +
        order + ", 0, 1) as index_letter, favourite._id as favourite_available FROM verb\n" + join +
        "\nLEFT OUTER JOIN favourite ON verb._id = favourite.verbid\nWHERE " + condition + "\n" +
        grouping + "\nORDER BY " + order;
    return query;
}

} // namespace lumora::lists
