// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/verb.h"
#include "detail/form_sheet.h"
#include "detail/verb_card.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace lumora::platform {
class CrashReporter;
class Database;
class DatabaseQueue;
} // namespace lumora::platform

namespace lumora::detail {

/// What the screen of a verb tells besides its tables, read when it is asked for.
/// A database that cannot be asked is logged, and what it would tell is left out.
/// Made for one call and not kept; what it refers to must outlive it.
class VerbGuide {
public:
    /// The verb's forms are loaded.
    VerbGuide(const data::Verb& verb, platform::DatabaseQueue* queue, Wording wording,
              platform::CrashReporter& crashReporter);

    std::string summary() const;
    std::vector<VerbCardLine> card() const;
    std::optional<FormSheet> sheet(const RowPlace& place) const;
    std::optional<TenseNote> note(int segment, int tense) const;
    /// Null where there is none of that id.
    data::VerbPtr verb(std::int64_t id) const;

private:
    template <typename Value>
    Value read(const std::function<platform::Result<Value>(platform::Database&)>& question) const;
    std::optional<data::VerbFacts> facts() const;

    const data::Verb& verb_;
    platform::DatabaseQueue* queue_;
    Wording wording_;
    platform::CrashReporter& crashReporter_;
};

} // namespace lumora::detail
