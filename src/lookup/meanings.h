// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/base/error.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lumora::platform {
class Database;
}

namespace lumora::lookup {

/// What the verbs mean in one language.
class Meanings {
public:
    /// By the two letters of a language. French has none: there nothing is found.
    static platform::Result<Meanings> read(platform::Database& database, std::string_view language);

    struct Match {
        std::int64_t verb = -1;
        /// Which of the verb's senses; more where the words are only a part of it.
        int rank = 0;
    };

    /// The verbs with a sense that is the tidied text or has it among its words.
    /// "to" before an English verb does not count, nor brackets in a sense.
    std::vector<Match> find(std::string_view tidy) const;

    const std::string& language() const { return language_; }

private:
    struct Sense {
        std::int64_t verb;
        int place;
        /// Folded, with a blank on both sides.
        std::string words;
    };
    std::vector<Sense> senses_;
    std::string language_;
};

} // namespace lumora::lookup
