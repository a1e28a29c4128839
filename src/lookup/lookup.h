// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "lookup/catalogue.h"
#include "lookup/meanings.h"
#include "lookup/reading.h"
#include "platform/base/error.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace lumora::platform {
class Database;
}

namespace lumora::lookup {

/// What may be read from a text.
enum class Guesses {
    /// Only what the text says: forms, and whole senses of a meaning.
    None,
    /// Words of a longer sense, and where the text says nothing typos, sounds and
    /// parts of a sentence too.
    Allowed,
};

/// Says what a typed text may mean: which verbs, which of their forms.
///
/// Loads its index from the database when it is first asked, and keeps about 6 MB
/// from then on: one object for one database. Not to be used by two threads at once.
class Lookup {
public:
    /// Loads the index now, so that no text has to wait for it. An error when the
    /// database cannot be read; the next call tries again.
    platform::Result<void> prepare(platform::Database& database);

    /// What `text`, any bytes, may mean, the best first, a handful at most; none
    /// when it is no verb in any way. `language` is that of the meanings. An error
    /// when the database cannot be read.
    platform::Result<std::vector<Reading>> read(platform::Database& database, std::string_view text,
                                                std::string_view language,
                                                Guesses guesses = Guesses::Allowed);

    /// The verbs that the text names by their infinitive, homographs all, by id. The
    /// closest likeness that finds any wins: the name as it stands, then "évanouir"
    /// for "évanouir (s')", then both without accents. A text that names a pronominal
    /// verb means no other.
    platform::Result<std::vector<std::int64_t>> verbsNamed(platform::Database& database,
                                                           std::string_view text);

private:
    platform::Result<const Meanings*> meanings(platform::Database& database,
                                               std::string_view language);

    // Made when they are first asked for.
    std::optional<Catalogue> catalogue_;
    std::optional<Meanings> meanings_;
};

} // namespace lumora::lookup
