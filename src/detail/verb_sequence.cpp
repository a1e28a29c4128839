// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "detail/verb_sequence.h"

#include <utility>

namespace lumora::detail {

VerbSequence::VerbSequence(std::vector<data::VerbPtr> verbs, std::size_t at)
{
    if (at < verbs.size()) {
        verbs_ = std::make_shared<const std::vector<data::VerbPtr>>(std::move(verbs));
        at_ = static_cast<std::ptrdiff_t>(at);
    }
}

data::VerbPtr VerbSequence::neighbour(int places) const
{
    const auto wanted = at_ + places;
    if (!verbs_ || wanted < 0 || wanted >= static_cast<std::ptrdiff_t>(verbs_->size())) {
        return nullptr;
    }
    return (*verbs_)[static_cast<std::size_t>(wanted)];
}

VerbSequence VerbSequence::movedBy(int places) const
{
    auto moved = *this;
    moved.at_ += places;
    return moved;
}

} // namespace lumora::detail
