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
    /// Only what the text says.
    None,
    /// Slips, sounds and parts of a sentence too, where it says nothing.
    Allowed,
};

/// Says what a typed text may mean: which verbs, which of their forms.
///
/// Made once, in some tenths of a second, it keeps about 6 MB. Not to be used by
/// two threads at once.
class Lookup {
public:
    /// An error when the database cannot be read.
    static platform::Result<Lookup> build(platform::Database& database);

    /// What `text`, any bytes, may mean, the best first, a handful at most; none
    /// when it is no verb in any way. `database` is the one that this was built of;
    /// `language` that of the meanings. An error when the database cannot be read.
    platform::Result<std::vector<Reading>> read(platform::Database& database, std::string_view text,
                                                std::string_view language,
                                                Guesses guesses = Guesses::Allowed);

private:
    explicit Lookup(Catalogue catalogue) : catalogue_{std::move(catalogue)} {}
    platform::Result<const Meanings*> meanings(platform::Database& database,
                                               std::string_view language);
    const std::vector<std::uint32_t>& sounds();

    Catalogue catalogue_;
    /// Made when they are first asked for.
    std::optional<Meanings> meanings_;
    std::vector<std::uint32_t> sounds_;
};

} // namespace lumora::lookup
