// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "detail/verb_guide.h"

#include "detail/row_sounds.h"
#include "platform/machine/crash_reporter.h"
#include "platform/storage/database_queue.h"

#include <utility>

namespace lumora::detail {

VerbGuide::VerbGuide(const data::Verb& verb, platform::DatabaseQueue* queue, Wording wording,
                     platform::CrashReporter& crashReporter)
    : verb_{verb}, queue_{queue}, wording_{wording}, crashReporter_{crashReporter}
{}

template <typename Value>
Value VerbGuide::read(
    const std::function<platform::Result<Value>(platform::Database&)>& question) const
{
    Value value{};
    if (queue_ == nullptr) {
        return value;
    }
    queue_->inDatabase([&](platform::Database& database) {
        if (auto answer = question(database)) {
            value = std::move(*answer);
        } else {
            crashReporter_.logWithFormat(
                "An error occurred when reading what is known of a verb: %@ (%d)",
                {answer.error().message, answer.error().code});
        }
    });
    return value;
}

std::optional<data::VerbFacts> VerbGuide::facts() const
{
    return read<std::optional<data::VerbFacts>>(
        [this](platform::Database& database) { return data::readVerbFacts(database, verb_.id); });
}

std::string VerbGuide::summary() const
{
    const auto known = facts();
    return known ? verbSummary(verb_, *known, wording_) : std::string{};
}

std::vector<VerbCardLine> VerbGuide::card() const
{
    const auto known = facts();
    const auto relations = read<data::VerbRelations>([&](platform::Database& database) {
        return data::readVerbRelations(database, verb_, known);
    });
    return verbCard(verb_, known, relations, wording_);
}

std::optional<FormSheet> VerbGuide::sheet(const RowPlace& place) const
{
    return formSheet(verb_, place, RowSounds{verb_, queue_}, wording_);
}

std::optional<TenseNote> VerbGuide::note(int segment, int tense) const
{
    return tenseNote(segment, tense, wording_);
}

data::VerbPtr VerbGuide::verb(std::int64_t id) const
{
    return read<data::VerbPtr>(
        [id](platform::Database& database) { return data::readVerb(database, id); });
}

} // namespace lumora::detail
