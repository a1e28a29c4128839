// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "detail/ce_round_progress_view.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace lumora {
namespace {

using detail::CERoundProgressView;

class RecordingListener final : public platform::ViewChangeListener {
public:
    void viewChanged(const platform::ViewChange& change) override { changes.push_back(change); }
    std::vector<platform::ViewChange> changes;
};

TEST(RoundProgress, AnimatesRisingAndJumpsFalling)
{
    const struct {
        float from;
        float to;
        float stored;
        bool animated;
    } cases[] = {
        {0.3F, 0.6F, 0.6F, true},   {0.6F, 0.0F, 0.0F, false},
        {0.5F, 0.5F, 0.5F, false},  {0.2F, 1.5F, 1.0F, true},
        {0.2F, -0.2F, 0.0F, false}, {0.2F, std::numeric_limits<float>::quiet_NaN(), 0.0F, false},
    };
    for (const auto& c : cases) {
        CERoundProgressView view;
        view.setProgress(c.from, false);
        RecordingListener listener;
        view.addListener(&listener);

        view.setProgress(c.to);

        EXPECT_EQ(view.progress(), c.stored);
        const platform::ViewChange change{c.from, c.stored, c.animated ? 0.25 : 0};
        EXPECT_EQ(listener.changes, std::vector{change});
    }
}

} // namespace
} // namespace lumora
