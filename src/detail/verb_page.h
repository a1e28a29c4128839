// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/conjugation.h"
#include "detail/conjugation_grid.h"
#include "detail/verb_guide.h"
#include "platform/machine/speech_synthesizer.h"

#include <cstdint>
#include <iosfwd>

namespace lumora::platform {
class CrashReporter;
class SettingsStore;
class Storyboard;
} // namespace lumora::platform

namespace lumora::detail {

class VerbDetailTableViewController;

/// What the page of a verb offers around its tables: the verb's card, the sheets
/// of its forms, saying a whole tense, the way to other verbs.
///
/// Made for one call and not kept; what is passed must outlive it.
class VerbPage {
public:
    VerbPage(VerbDetailTableViewController& screen, const Wording& wording,
             platform::SettingsStore& viewMemory, platform::Storyboard& storyboard,
             platform::CrashReporter& crashReporter, std::ostream& console)
        : screen_{screen},
          wording_{wording},
          viewMemory_{viewMemory},
          storyboard_{storyboard},
          crashReporter_{crashReporter},
          console_{console}
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
    /// Whether its card shows all lines. `fallback` is the answer before the person
    /// has ever opened or closed a card.
    bool isCardOpen(bool fallback) const;
    void keepCardOpen(bool open) const;

    /// Goes on to the verb that many places away in the list, in place of this
    /// one; the screen may be gone then.
    void showNeighbour(int places) const;
    /// Opens another verb over this one.
    void showRelated(std::int64_t verbId) const;

private:
    VerbDetailTableViewController& screen_;
    Wording wording_;
    platform::SettingsStore& viewMemory_;
    platform::Storyboard& storyboard_;
    platform::CrashReporter& crashReporter_;
    std::ostream& console_;
};

} // namespace lumora::detail
