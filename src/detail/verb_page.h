// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/conjugation.h"
#include "detail/conjugation_grid.h"
#include "detail/verb_guide.h"
#include "platform/machine/speech_synthesizer.h"
#include "platform/screens/services.h"

#include <cstdint>

namespace lumora::detail {

class VerbDetailTableViewController;

/// What the page of a verb offers around its tables: the verb's card, the sheets
/// of its forms, saying a whole tense, the way to other verbs.
///
/// Made for one call and not kept; the screen must outlive it.
class VerbPage {
public:
    VerbPage(VerbDetailTableViewController& screen, const platform::Services& services)
        : screen_{screen}, services_{services}
    {}

    /// The voice that speaks, from the next row on and on every verb's screen.
    platform::Voice voice() const;
    void chooseVoice(platform::Voice voice) const;

    /// Speaks the rows of a tense of the chosen mood one after another.
    void playTense(int position) const;
    /// Says a form slowly. `fromCollection`: the ring of the collection moves, else
    /// that of the table.
    void saySlowly(const RowPlace& place, bool fromCollection) const;

    /// False for a verb without a form, as after a failed reading: then a tense without
    /// forms does not mean that the verb lacks it.
    bool hasForms() const;
    /// Of a tense of the chosen mood.
    const data::ConjugationList& formsOfTense(int position) const;

    /// What is told of the verb besides its tables; there must be one.
    VerbGuide guide() const;
    /// Whether its card shows all lines. `unlessChosen` is the answer before the person
    /// has ever opened or closed a card.
    bool isCardOpen(bool unlessChosen) const;
    void keepCardOpen(bool open) const;

    /// Goes on to the verb that many places away in the list, in place of this
    /// one; the screen may be gone then.
    void showNeighbour(int places) const;
    /// Opens another verb over this one.
    void showRelated(std::int64_t verbId) const;

private:
    VerbDetailTableViewController& screen_;
    const platform::Services& services_;
};

} // namespace lumora::detail
