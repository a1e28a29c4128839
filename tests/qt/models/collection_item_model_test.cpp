// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/models/reusable_collection_model.h"

#include "detail/ce_round_progress_view.h"

#include <QAbstractItemModelTester>

#include <gtest/gtest.h>

namespace lumora::qt {
namespace {

class ScriptedCollection final : public platform::CollectionDataSource {
public:
    std::vector<std::string> titles;
    std::shared_ptr<detail::CERoundProgressView> indicator =
        std::make_shared<detail::CERoundProgressView>();
    std::pair<int, int> tapped{-1, -1};

    int numberOfItems() override { return static_cast<int>(titles.size()); }
    platform::CollectionCell cellForItem(int item) override
    {
        return {"Conjugations",
                titles.at(static_cast<std::size_t>(item)),
                {{"je", "vais", 30, 8, false, {indicator}, "je vais"},
                 {" ", " ", 0, 0, true, {nullptr}, ""}}};
    }
    platform::CollectionHeader header() override
    {
        return {"Header", std::to_string(titles.size()) + " tenses"};
    }
    platform::CollectionLayout layout() override { return {300, 300, 20, 20}; }
    void audioTapped(int item, int row) override { tapped = {item, row}; }
};

TEST(CollectionItemModel, FollowsItsControllerThroughReloads)
{
    ScriptedCollection source;
    CollectionItemModel model{source};
    const QAbstractItemModelTester tester{&model,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal};
    for (const auto& titles : std::vector<std::vector<std::string>>{
             {"a", "b", "c"}, {"d"}, {}, {"e", "f"}, {"g", "h"}}) {
        source.titles = titles;
        model.reloadData();
        ASSERT_EQ(model.rowCount(), static_cast<int>(titles.size()));
        for (std::size_t i = 0; i < titles.size(); ++i) {
            EXPECT_EQ(model.data(model.index(static_cast<int>(i)), CollectionItemModel::TitleRole)
                          .toString()
                          .toStdString(),
                      titles[i]);
        }
        EXPECT_EQ(model.headerText().toStdString(), std::to_string(titles.size()) + " tenses");
    }
}

TEST(CollectionItemModel, HandsOnLinesAndTheirControls)
{
    ScriptedCollection source;
    CollectionItemModel model{source};
    source.titles = {"a", "b"};
    model.reloadData();

    const auto line = [&](int number) {
        return model.data(model.index(1), CollectionItemModel::FirstLineRole + number)
            .value<CollectionLine>();
    };
    EXPECT_EQ(line(0).trailing, QStringLiteral("vais"));
    ASSERT_NE(line(0).indicator, nullptr);
    EXPECT_TRUE(line(0).indicator->isFor(source.indicator.get()));
    EXPECT_FALSE(line(0).controlHidden);
    EXPECT_EQ(line(1).indicator, nullptr);
    EXPECT_TRUE(line(5).controlHidden) << "fewer lines than there is room for";

    model.tapAudio(1, 5);
    EXPECT_EQ(source.tapped, (std::pair{1, 5}));
    model.tapAudio(2, 0);
    EXPECT_EQ(source.tapped, (std::pair{1, 5})) << "there is no third square";
}

TEST(ReusableCollectionModel, ShowsAnotherCollectionAsFarAsItIsAsked)
{
    ScriptedCollection sources[2];
    sources[0].titles = {"a", "b", "c"};
    sources[1].titles = {"d", "e"};
    CollectionItemModel collections[2]{CollectionItemModel{sources[0]},
                                       CollectionItemModel{sources[1]}};
    ReusableCollectionModel model;
    const QAbstractItemModelTester tester{&model,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal};
    using Rows = std::vector<std::pair<int, int>>;
    Rows told;
    QObject::connect(&model, &QAbstractItemModel::dataChanged,
                     [&](const QModelIndex& first, const QModelIndex& last) {
                         told.emplace_back(first.row(), last.row());
                     });

    model.setCollection(&collections[0]);
    EXPECT_FALSE(model.isWaiting()) << "new items are full";
    model.setCollection(&collections[1]);
    EXPECT_TRUE(model.isWaiting());
    model.fill(1);
    model.fill(1);
    EXPECT_TRUE(model.isWaiting());
    EXPECT_EQ(told, (Rows{{0, 0}}));
    model.fill(5);
    EXPECT_FALSE(model.isWaiting());

    sources[1].titles = {"f", "g", "h"};
    collections[1].reloadData();
    EXPECT_FALSE(model.isWaiting()) << "a reload is told at once";
    EXPECT_EQ(told, (Rows{{0, 0}, {1, 1}, {0, 2}}));
    EXPECT_EQ(model.data(model.index(2), CollectionItemModel::TitleRole).toString(), "h");
    collections[0].reloadData();
    EXPECT_EQ(told.size(), 3U) << "deaf to the one before";
}

} // namespace
} // namespace lumora::qt
