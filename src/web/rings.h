// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/animated_view.h"
#include "web/outbox.h"

#include <memory>
#include <vector>

namespace lumora::web {

/// Gives the rings of play controls numbers, and tells the page by number how they move.
class Rings {
public:
    explicit Rings(Outbox& outbox) : outbox_{outbox} {}

    /// "ring" with its number and value; null for none.
    Json describe(const std::shared_ptr<platform::AnimatedView>& view);

private:
    class Ring final : public platform::ViewChangeListener {
    public:
        Ring(int called, std::shared_ptr<platform::AnimatedView> shown, Outbox& outbox);
        ~Ring() override;
        void viewChanged(const platform::ViewChange& change) override;

        int number;
        std::shared_ptr<platform::AnimatedView> view;

    private:
        Outbox& outbox_;
    };

    Outbox& outbox_;
    int last_ = 0;
    std::vector<std::unique_ptr<Ring>> rings_;
};

} // namespace lumora::web
