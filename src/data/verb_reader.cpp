// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/verb_reader.h"

#include "data/conjugation.h"
#include "data/tense_table.h"
#include "data/translation_table.h"
#include "platform/storage/database.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

namespace lumora::data {

namespace {

constexpr std::string_view kConjugationsOfVerb =
    "SELECT _id, pronoun, verb, type, conj_order as pid FROM conjugation WHERE verbid = ? AND "
    "display=1 ORDER BY conj_order";

constexpr std::string_view kVerbOfId =
    "SELECT verb._id, english, italian, portuguese, german, spanish, french, dutch, "
    "favourite._id as favourite_available\n"
    "FROM verb LEFT OUTER JOIN favourite ON verb._id = favourite.verbid\n"
    "WHERE verb._id = ?";

ConjugationList readForms(platform::ResultSet& rows)
{
    const int pronoun = rows.columnIndex("pronoun");
    const int verb = rows.columnIndex("verb");
    const int type = rows.columnIndex("type");
    const int pid = rows.columnIndex("pid");
    ConjugationList forms;
    while (rows.next()) {
        forms.push_back(std::make_shared<const Conjugation>(
            Conjugation{rows.stringForColumn(pronoun), rows.stringForColumn(verb),
                        rows.stringForColumn(type), rows.longForColumn(pid)}));
    }
    return forms;
}

} // namespace

VerbReader::VerbReader(const platform::ResultSet& rows, Spellings spellings)
    : id_{rows.columnIndex("_id")}, favouriteAvailable_{rows.columnIndex("favourite_available")}
{
    for (const auto& language : kTranslationLanguages) {
        if (!language.hasColumn()) {
            continue;
        }
        texts_.push_back({language.text, rows.columnIndex(language.column)});
        if (spellings == Spellings::WithSimplified && language.simplifiedText != nullptr) {
            texts_.push_back(
                {language.simplifiedText, rows.columnIndex(language.simplifiedColumn)});
        }
    }
}

VerbPtr VerbReader::readVerb(const platform::ResultSet& rows) const
{
    auto verb = std::make_shared<Verb>();
    verb->id = rows.longForColumn(id_);
    for (const auto& [field, column] : texts_) {
        (*verb).*field = rows.stringForColumn(column);
    }
    verb->isFavourite = rows.boolForColumn(favouriteAvailable_);
    return verb;
}

bool forEachVerb(platform::Result<platform::ResultSet>& rows, VerbReader::Spellings spellings,
                 const std::function<void(const VerbPtr&, const platform::ResultSet&)>& visit)
{
    if (!rows) {
        return false;
    }
    const VerbReader reader{*rows, spellings};
    while (rows->next()) {
        visit(reader.readVerb(*rows), *rows);
    }
    return !rows->failed();
}

bool readVerbs(platform::Result<platform::ResultSet>& rows, VerbReader::Spellings spellings,
               std::vector<VerbPtr>& verbs)
{
    return forEachVerb(
        rows, spellings,
        [&](const VerbPtr& verb, const platform::ResultSet& /*rows*/) { verbs.push_back(verb); });
}

bool readVerbOfId(platform::Database& database, std::int64_t id, std::vector<VerbPtr>& verbs)
{
    auto rows = database.executeQuery(kVerbOfId, {id});
    return readVerbs(rows, VerbReader::Spellings::Plain, verbs);
}

bool loadConjugations(platform::Database& database, Verb& verb)
{
    auto rows = database.executeQuery(kConjugationsOfVerb, {verb.id});
    if (!rows) {
        return false;
    }
    const auto forms = readForms(*rows);
    for (const auto& tense : kTenses) {
        auto& list = verb.*tense.forms;
        list.clear();
        std::copy_if(forms.begin(), forms.end(), std::back_inserter(list),
                     [&](const auto& form) { return form->type == tense.identifier; });
    }
    return !rows->failed();
}

} // namespace lumora::data
