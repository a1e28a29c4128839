// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/verb.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace lumora::detail {

/// The verbs of a list in the order in which they stood when one of them was
/// opened, and which one that is. Cheap to copy.
class VerbSequence {
public:
    /// Leads nowhere.
    VerbSequence() = default;
    /// `at` is one of the verbs; else the sequence leads nowhere.
    VerbSequence(std::vector<data::VerbPtr> verbs, std::size_t at);

    /// The verb that many places on, or back where negative; null beyond the ends.
    data::VerbPtr neighbour(int places) const;
    /// The same verbs, standing at that place, which must exist.
    VerbSequence movedBy(int places) const;

private:
    std::shared_ptr<const std::vector<data::VerbPtr>> verbs_;
    std::ptrdiff_t at_ = 0;
};

} // namespace lumora::detail
