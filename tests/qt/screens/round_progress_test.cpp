// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "detail/ce_round_progress_view.h"
#include "qt/models/indicator_source.h"
#include "qt/screens/painter_vector_context.h"
#include "qt/screens/round_progress_item.h"

#include <QPainter>
#include <QSignalSpy>

#include <cmath>
#include <numbers>

#include <gtest/gtest.h>

namespace lumora::qt {
namespace {

constexpr platform::Color kBlue{0, 0, 1, 1};

/// The colour at an angle (clockwise from three o'clock) and a part of the radius
/// of the disc, in a frame of an animation that has come that far.
QColor colorAt(const detail::CERoundProgressView& view, float progress, double degrees,
               const QSize& size, double part = 0.7)
{
    QImage image{size, QImage::Format_ARGB32_Premultiplied};
    image.fill(Qt::transparent);
    {
        QPainter painter{&image};
        PainterVectorContext context{painter};
        view.layer().presentationCopy(progress)->drawInContext(
            context, {static_cast<double>(size.width()), static_cast<double>(size.height())});
    }
    const double angle = degrees * std::numbers::pi / 180;
    const double radius = std::min(size.width(), size.height()) / 2.0 * part;
    return image.pixelColor(static_cast<int>(size.width() / 2 + radius * std::cos(angle)),
                            static_cast<int>(size.height() / 2 + radius * std::sin(angle)));
}

TEST(RoundProgress, FillsAWedgeClockwiseFromItsStartAngle)
{
    struct {
        float progress;
        float startAngle;
        double degrees;
        bool filled;
    } cases[] = {
        {0.0F, 0, 45, false},
        {0.25F, 0, 45, true},
        {0.25F, 0, 135, false},
        {0.25F, 0, 315, false},
        {0.5F, 0, 170, true},
        {0.5F, 0, 190, false},
        {1.0F, 0, 359, true},
        {0.25F, -std::numbers::pi_v<float> / 2, 315, true},
        {0.25F, -std::numbers::pi_v<float> / 2, 45, false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::to_string(c.progress) + " at " + std::to_string(c.degrees));
        detail::CERoundProgressView view;
        view.setTintColor(kBlue);
        view.setStartAngle(c.startAngle);
        view.setProgress(1, false);
        for (const QSize size : {QSize{60, 60}, {100, 60}}) {
            EXPECT_EQ(colorAt(view, c.progress, c.degrees, size),
                      c.filled ? QColor{Qt::blue} : QColor{Qt::white});
            EXPECT_EQ(colorAt(view, c.progress, 45, size, 1.1).alpha(), 0)
                << "the disc is as large as fits";
        }
    }
}

TEST(RoundProgress, AnimationsReachEveryItemAndEitherSideMayGoFirst)
{
    auto view = std::make_shared<detail::CERoundProgressView>();
    IndicatorPool pool;
    IndicatorSource* source = pool.sourceFor(view);
    EXPECT_EQ(pool.sourceFor(view), source);
    QSignalSpy added{source, &IndicatorSource::animationAdded};
    RoundProgressItem first;
    first.setSource(source);
    {
        RoundProgressItem second;
        second.setSource(source);
    }

    view->setProgress(0.5F);
    ASSERT_EQ(added.count(), 1);
    EXPECT_EQ(added[0][1].toFloat(), 0.5F);

    pool.dropOrphans();
    EXPECT_EQ(first.source(), source) << "the controller still has the view";
    std::weak_ptr<detail::CERoundProgressView> weak = view;
    view.reset();
    EXPECT_FALSE(weak.expired()) << "kept while it is drawn";
    pool.dropOrphans();
    EXPECT_TRUE(weak.expired());
    EXPECT_EQ(first.source(), nullptr);
}

TEST(RoundProgress, AViewOutlivesItsHost)
{
    auto view = std::make_shared<detail::CERoundProgressView>();
    {
        IndicatorPool pool;
        pool.sourceFor(view);
    }
    view->setProgress(0.5F);
    EXPECT_EQ(view->progress(), 0.5F);
}

} // namespace
} // namespace lumora::qt
