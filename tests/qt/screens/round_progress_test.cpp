// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "detail/ce_round_progress_view.h"
#include "qt/models/indicator_source.h"
#include "qt/screens/round_progress_item.h"

#include <QPainter>
#include <QSignalSpy>
#include <QTest>

#include <cmath>
#include <numbers>

#include <gtest/gtest.h>

namespace lumora::qt {
namespace {

constexpr platform::Color kBlue{0, 0, 1, 1};

/// The colour at an angle (clockwise from three o'clock) and a part of the radius
/// of the disc, as it is painted now.
QColor colorAt(RoundProgressItem& item, double degrees, double part = 0.7)
{
    const auto size = item.size().toSize();
    QImage image{size, QImage::Format_ARGB32_Premultiplied};
    image.fill(Qt::transparent);
    {
        QPainter painter{&image};
        item.paint(&painter);
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
        const auto view = std::make_shared<detail::CERoundProgressView>();
        view->setTintColor(kBlue);
        view->setStartAngle(c.startAngle);
        view->setProgress(c.progress, false);
        IndicatorSource source{view};
        RoundProgressItem item;
        item.setSource(&source);
        for (const QSizeF size : {QSizeF{60, 60}, {100, 60}}) {
            item.setSize(size);
            EXPECT_EQ(colorAt(item, c.degrees), c.filled ? QColor{Qt::blue} : QColor{Qt::white});
            EXPECT_EQ(colorAt(item, 45, 1.1).alpha(), 0) << "the disc is as large as fits";
        }
    }
}

TEST(RoundProgress, AnAnimationIsSeenToItsEndThoughTheNumberFallsMeanwhile)
{
    const auto view = std::make_shared<detail::CERoundProgressView>();
    view->setTintColor(kBlue);
    IndicatorSource table{view};
    IndicatorSource cards{view};
    for (auto* source : {&table, &cards}) {
        RoundProgressItem item;
        item.setSize({60, 60});
        item.setSource(source);
        view->setProgress(0.6F, false);
        EXPECT_TRUE(source->isRunning());
        QSignalSpy frames{source, &IndicatorSource::displayNeeded};

        // As at the end of an utterance.
        view->setProgress(1);
        view->setProgress(0);

        EXPECT_EQ(view->progress(), 0);
        EXPECT_TRUE(QTest::qWaitFor([&] { return source->shownValue() > 0.9F; }));
        EXPECT_TRUE(source->isRunning());
        EXPECT_EQ(colorAt(item, 310), QColor{Qt::blue}) << "beyond where it was";
        EXPECT_TRUE(QTest::qWaitFor([&] { return !source->isRunning(); }));
        EXPECT_EQ(source->shownValue(), 0);
        EXPECT_EQ(colorAt(item, 310), QColor{Qt::white});
        EXPECT_GT(frames.count(), 5);
    }
}

TEST(RoundProgress, AnItemLosesItsSourceWhenTheControllerDropsTheView)
{
    auto view = std::make_shared<detail::CERoundProgressView>();
    IndicatorPool pool;
    IndicatorSource* source = pool.sourceFor(view);
    EXPECT_EQ(pool.sourceFor(view), source);
    RoundProgressItem item;
    item.setSource(source);

    pool.dropOrphans();
    EXPECT_EQ(item.source(), source) << "the controller still has the view";
    std::weak_ptr<detail::CERoundProgressView> weak = view;
    view.reset();
    EXPECT_FALSE(weak.expired()) << "kept while it is drawn";
    pool.dropOrphans();
    EXPECT_TRUE(weak.expired());
    EXPECT_EQ(item.source(), nullptr);
}

TEST(RoundProgress, AViewOutlivesItsListeners)
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
