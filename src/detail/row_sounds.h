// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/machine/speech_synthesizer.h"

#include <string>
#include <string_view>
#include <vector>

namespace lumora::data {
struct Conjugation;
struct Verb;
} // namespace lumora::data
namespace lumora::platform {
class DatabaseQueue;
}

namespace lumora::detail {

/// How the rows of one verb are said.
class RowSounds {
public:
    /// The database is asked whether the verb begins with an aspirated h. Without a
    /// queue, or where the database does not know the verb, the h counts as mute.
    RowSounds(const data::Verb& verb, platform::DatabaseQueue* queue);

    /// In IPA, the variants of a double form parted by ", ". Empty for a row of
    /// no known tense.
    std::string ipa(const data::Conjugation& row) const;

    /// The words of the row as a text that is read aloud, "il ou elle ou on va".
    std::vector<platform::PronouncedWord> words(std::string_view spoken,
                                                const data::Conjugation& row) const;

private:
    std::string infinitive_;
    bool aspirated_ = false;
};

} // namespace lumora::detail
