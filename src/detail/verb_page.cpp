// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "detail/verb_page.h"

#include "data/tense_table.h"
#include "detail/verb_detail_table_view_controller.h"
#include "detail/verb_steps.h"
#include "settings/view_memory.h"

#include <algorithm>

namespace lumora::detail {

platform::Voice VerbPage::voice() const
{
    return settings::ViewMemory{viewMemory_}.voice();
}

void VerbPage::chooseVoice(platform::Voice voice) const
{
    settings::reportIfNotSaved(settings::ViewMemory{viewMemory_}.setVoice(voice), "the voice",
                               console_);
    screen_.outletsChanged();
}

void VerbPage::playTense(int position) const
{
    screen_.play(screen_.grid().playableTense(screen_.shown(), position));
}

void VerbPage::saySlowly(const RowPlace& place, bool fromCollection) const
{
    constexpr float kPace = 0.6F;

    const ShownMood mood{screen_.selectedVerb.get(), place.segment};
    auto& grid = screen_.grid();
    // The first section of the table is not a tense.
    if (const auto row = fromCollection ? grid.playableLine(mood, place.tense, place.row)
                                        : grid.playableRow(mood, {place.tense + 1, place.row})) {
        screen_.play({*row}, kPace);
    }
}

bool VerbPage::hasForms() const
{
    const auto* verb = screen_.selectedVerb.get();
    return verb != nullptr && std::any_of(data::kTenses.begin(), data::kTenses.end(),
                                          [verb](const data::TenseField& tense) {
                                              return !((*verb).*(tense.forms)).empty();
                                          });
}

const data::ConjugationList& VerbPage::formsOfTense(int position) const
{
    return ConjugationGrid::forms(screen_.shown(), position);
}

VerbGuide VerbPage::guide() const
{
    return {*screen_.selectedVerb, screen_.queue, wording_, crashReporter_};
}

bool VerbPage::isCardOpen(bool fallback) const
{
    return settings::ViewMemory{viewMemory_}.cardOpen().value_or(fallback);
}

void VerbPage::keepCardOpen(bool open) const
{
    settings::reportIfNotSaved(settings::ViewMemory{viewMemory_}.setCardOpen(open),
                               "whether the card is open", console_);
}

void VerbPage::showNeighbour(int places) const
{
    const auto& list = screen_.sequence;
    showVerb(screen_, list.neighbour(places), list.movedBy(places), VerbStep::Replace, storyboard_);
}

void VerbPage::showRelated(std::int64_t verbId) const
{
    showVerb(screen_, guide().verb(verbId), {}, VerbStep::Cover, storyboard_);
}

} // namespace lumora::detail
