// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "detail/verb_sequence.h"

namespace lumora::platform {
class Storyboard;
}

namespace lumora::detail {

class VerbDetailTableViewController;

/// What becomes of a verb's screen when another verb's is shown.
enum class VerbStep {
    /// It is taken away, so that going back leads to the list after any number of verbs.
    Replace,
    /// It waits below, and the way back leads to it.
    Cover
};

/// Shows another verb on the stack of a verb's screen, in the same mood. Does
/// nothing for no verb and for a screen on no stack. A replaced screen may be
/// gone after the call.
void showVerb(VerbDetailTableViewController& from, data::VerbPtr verb, VerbSequence sequence,
              VerbStep step, platform::Storyboard& storyboard);

} // namespace lumora::detail
