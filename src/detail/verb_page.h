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
/// Made for a question and let go; the screen must outlive it.
class VerbPage {
public:
    VerbPage(VerbDetailTableViewController& screen, const platform::Services& services)
        : screen_{screen}, services_{services}
    {}

    /// The one that speaks from the next row on, on every verb's screen.
    platform::Voice voice() const;
    void chooseVoice(platform::Voice voice) const;

    /// Speaks the rows of a tense of the chosen mood one after another.
    void playTense(int position) const;
    /// Says a form at a pace to learn it by; `fromCollection` says whose ring
    /// tells so.
    void saySlowly(const RowPlace& place, bool fromCollection) const;

    /// Whether there is anything to say of a tense without forms: nothing is
    /// known of it after a failed reading.
    bool hasForms() const;
    /// Of a tense of the chosen mood.
    const data::ConjugationList& formsOfTense(int position) const;

    /// What is told of the verb besides its tables; there must be one.
    VerbGuide guide() const;
    /// Whether its card shows all lines.
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
