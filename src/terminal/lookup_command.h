// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "lookup/lookup.h"
#include "platform/base/error.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lumora::terminal {

class Session;

/// What texts mean, in the language of the session's translations.
class TextReader {
public:
    explicit TextReader(Session& session);

    platform::Result<std::vector<lookup::Reading>>
    read(std::string_view text, lookup::Guesses guesses = lookup::Guesses::Allowed);

    /// The verbs that the text is a form of, a reading a name: one for verbs that
    /// differ in their meaning or their pronoun only. No guesses, and no infinitives:
    /// these are names.
    platform::Result<std::vector<lookup::Reading>> verbsOfForm(std::string_view text);

    /// The ids of the verbs of that name.
    platform::Result<std::vector<std::int64_t>> verbsNamed(std::string_view name);
    /// A few headwords that differ from it by a typo or two, the nearest first.
    platform::Result<std::vector<std::string>> namesNear(std::string_view name);

private:
    Session& session_;
    std::string language_;
    lookup::Lookup lookup_;
};

/// "être, suivre and suivre (se)": the readings' verbs, for a person.
std::string namesOf(const std::vector<lookup::Reading>& readings);

} // namespace lumora::terminal
