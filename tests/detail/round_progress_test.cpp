// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "detail/ce_round_progress_view.h"

#include <gtest/gtest.h>

#include <limits>
#include <numbers>
#include <sstream>
#include <vector>

namespace lumora {
namespace {

using detail::CERoundProgressView;
using platform::Color;
using platform::Point;
using platform::Size;

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

class RecordingContext final : public platform::VectorContext {
public:
    void addEllipse(Point at, Size size) override
    {
        words << "ellipse " << at.x << ' ' << at.y << ' ' << size.width << ' ' << size.height
              << '\n';
    }
    void addArc(Point center, double radius, double start, double end) override
    {
        words << "arc " << center.x << ' ' << center.y << ' ' << radius << ' ' << start << ' '
              << end / std::numbers::pi << "pi\n";
    }
    void addLineTo(Point point) override { words << "line " << point.x << ' ' << point.y << '\n'; }
    void closePath() override { words << "close\n"; }
    void fillPath(const Color& color) override { words << "fill " << color.blue << '\n'; }
    std::ostringstream words;
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

TEST(RoundProgress, DrawsAFrameOfAnAnimationAsTheLargestCentredDiscAndAWedge)
{
    CERoundProgressView view;
    view.setTrackColor({0, 0, 0.25, 1});
    view.setTintColor({0, 0, 0.75, 1});
    view.setStartAngle(1);
    view.setProgress(1, false);
    RecordingContext context;

    view.layer().presentationCopy(0.5F)->drawInContext(context, {40, 20});

    EXPECT_EQ(context.words.str(), "ellipse 10 0 20 20\n"
                                   "fill 0.25\n"
                                   "arc 20 10 10 1 1.31831pi\n"
                                   "line 20 10\n"
                                   "close\n"
                                   "fill 0.75\n");
}

} // namespace
} // namespace lumora
