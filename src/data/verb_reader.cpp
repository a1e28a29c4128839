// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/verb_reader.h"

#include "platform/storage/database.h"

#include <string_view>
#include <utility>

namespace lumora::data {

namespace {

using TextField = std::pair<std::string_view, std::string Verb::*>;

constexpr TextField kPlain[] = {
    {"english", &Verb::english},       {"german", &Verb::german}, {"french", &Verb::french},
    {"spanish", &Verb::spanish},       {"dutch", &Verb::dutch},   {"italian", &Verb::italian},
    {"portuguese", &Verb::portuguese},
};

constexpr TextField kSimplified[] = {
    {"simplified_german", &Verb::simplified_german},
    {"simplified_french", &Verb::simplified_french},
    {"simplified_spanish", &Verb::simplified_spanish},
    {"simplified_dutch", &Verb::simplified_dutch},
    {"simplified_italian", &Verb::simplified_italian},
    {"simplified_portuguese", &Verb::simplified_portuguese},
};

} // namespace

VerbReader::VerbReader(const platform::ResultSet& rows, Spellings spellings)
    : id_{rows.columnIndex("_id")}, favouriteAvailable_{rows.columnIndex("favourite_available")}
{
    for (const auto& [name, field] : kPlain) {
        texts_.push_back({field, rows.columnIndex(name)});
    }
    if (spellings == Spellings::WithSimplified) {
        for (const auto& [name, field] : kSimplified) {
            texts_.push_back({field, rows.columnIndex(name)});
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

bool readVerbs(platform::Result<platform::ResultSet>& rows, VerbReader::Spellings spellings,
               std::vector<VerbPtr>& verbs)
{
    if (!rows) {
        return false;
    }
    const VerbReader reader{*rows, spellings};
    while (rows->next()) {
        verbs.push_back(reader.readVerb(*rows));
    }
    return !rows->failed();
}

ConjugationReader::ConjugationReader(const platform::ResultSet& rows)
    : pronoun_{rows.columnIndex("pronoun")},
      verb_{rows.columnIndex("verb")},
      type_{rows.columnIndex("type")},
      pid_{rows.columnIndex("pid")}
{}

std::shared_ptr<const Conjugation>
ConjugationReader::readConjugation(const platform::ResultSet& rows) const
{
    return std::make_shared<const Conjugation>(
        Conjugation{rows.stringForColumn(pronoun_), rows.stringForColumn(verb_),
                    rows.stringForColumn(type_), rows.longForColumn(pid_)});
}

} // namespace lumora::data
