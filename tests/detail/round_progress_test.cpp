// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "detail/ce_round_progress_view.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace lumora {
namespace {

using detail::CERoundProgressView;

class RecordingHost final : public platform::LayerHost {
public:
    struct Animation {
        float from;
        float to;
        double duration;
        bool operator==(const Animation&) const = default;
    };
    void setNeedsDisplay() override { ++redraws; }
    void addAnimation(float from, float to, double duration) override
    {
        animations.push_back({from, to, duration});
    }
    int redraws = 0;
    std::vector<Animation> animations;
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
        RecordingHost host;
        view.setHost(&host);

        view.setProgress(c.to);

        EXPECT_EQ(view.progress(), c.stored);
        EXPECT_EQ(host.redraws, c.animated ? 0 : 1);
        const std::vector<RecordingHost::Animation> one{{c.from, c.stored, 0.25}};
        EXPECT_EQ(host.animations, c.animated ? one : std::vector<RecordingHost::Animation>{});
    }
}

} // namespace
} // namespace lumora
