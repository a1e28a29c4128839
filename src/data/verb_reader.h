// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/verb.h"
#include "platform/base/error.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace lumora::platform {
class Database;
class ResultSet;
} // namespace lumora::platform

namespace lumora::data {

/// Turns the rows of one statement into records. Looks the columns up once;
/// NULL and columns that the statement does not select read as empty.
class VerbReader {
public:
    /// Whether the simplified spellings are read too.
    enum class Spellings { Plain, WithSimplified };

    VerbReader(const platform::ResultSet& rows, Spellings spellings);

    /// The verb of the row that `rows` stands on.
    VerbPtr readVerb(const platform::ResultSet& rows) const;

private:
    struct TextColumn {
        std::string Verb::*field;
        int column;
    };

    int id_;
    int favouriteAvailable_;
    std::vector<TextColumn> texts_;
};

/// Calls `visit` with each verb and the row it was read from. False when the
/// statement failed, at once or on the way.
bool forEachVerb(platform::Result<platform::ResultSet>& rows, VerbReader::Spellings spellings,
                 const std::function<void(const VerbPtr&, const platform::ResultSet&)>& visit);

/// Appends the verbs of all rows. False when the statement failed, at once or
/// on the way; what was read before stays.
bool readVerbs(platform::Result<platform::ResultSet>& rows, VerbReader::Spellings spellings,
               std::vector<VerbPtr>& verbs);

/// Appends the verb of the id, if there is one. False when the statement failed.
bool readVerbOfId(platform::Database& database, std::int64_t id, std::vector<VerbPtr>& verbs);

/// Reads the forms that are shown into the verb's lists, by tense. False when
/// the statement failed: at once, and the lists are as before, or on the way,
/// and they hold what was read. The connection knows why.
bool loadConjugations(platform::Database& database, Verb& verb);

} // namespace lumora::data
