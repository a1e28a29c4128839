// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "web/rings.h"

#include <algorithm>
#include <utility>

namespace lumora::web {

Rings::Ring::Ring(int called, std::shared_ptr<platform::AnimatedView> shown, Outbox& outbox)
    : number{called}, view{std::move(shown)}, outbox_{outbox}
{
    view->addListener(this);
}

Rings::Ring::~Ring()
{
    view->removeListener(this);
}

void Rings::Ring::viewChanged(const platform::ViewChange& change)
{
    outbox_.add({{"do", "ring"},
                 {"ring", number},
                 {"from", change.from},
                 {"to", change.to},
                 {"seconds", change.duration}});
}

Json Rings::describe(const std::shared_ptr<platform::AnimatedView>& view)
{
    if (!view) {
        return nullptr;
    }
    auto found = std::find_if(rings_.begin(), rings_.end(),
                              [&](const auto& ring) { return ring->view == view; });
    if (found == rings_.end()) {
        // Those that nobody else holds any more.
        std::erase_if(rings_, [](const auto& ring) { return ring->view.use_count() == 1; });
        rings_.push_back(std::make_unique<Ring>(++last_, view, outbox_));
        found = rings_.end() - 1;
    }
    return {{"ring", (*found)->number}, {"value", view->value()}};
}

} // namespace lumora::web
