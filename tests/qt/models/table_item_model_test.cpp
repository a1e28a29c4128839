// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/base/text_conversion.h"
#include "qt/models/table_item_model.h"

#include <QAbstractItemModelTester>
#include <QCoreApplication>
#include <QSignalSpy>

#include <functional>

#include <gtest/gtest.h>

namespace lumora::qt {
namespace {

using platform::IndexPath;

struct ScriptedSection {
    std::optional<std::string> header;
    std::vector<std::string> rows;
    std::optional<std::string> footer;
};

class ScriptedSource final : public platform::TableDataSource {
public:
    std::vector<ScriptedSection> sections;
    platform::ActionStyle actionStyle = platform::ActionStyle::Destructive;
    std::function<void(const std::function<void(bool)>&)> handler;
    std::function<void()> whileCounting;
    std::function<void()> whileFilling;
    std::vector<IndexPath> tapped;
    int counts = 0;
    int cells = 0;

    int numberOfSections() override { return static_cast<int>(sections.size()); }
    int numberOfRowsInSection(int section) override
    {
        ++counts;
        if (const auto call = std::exchange(whileCounting, nullptr)) {
            call();
        }
        return static_cast<int>(at(section).rows.size());
    }
    std::optional<std::string> titleForHeaderInSection(int section) override
    {
        return at(section).header;
    }
    std::optional<std::string> titleForFooterInSection(int section) override
    {
        return at(section).footer;
    }
    std::vector<std::string> sectionIndexTitles() override { return {"A", "B", "C", "?"}; }
    int sectionForSectionIndexTitle(std::string_view title, int /*index*/) override
    {
        for (std::size_t i = 0; i < sections.size(); ++i) {
            if (sections[i].header == title) {
                return static_cast<int>(i);
            }
        }
        return -1;
    }
    platform::TableCell cellForRow(IndexPath path) override
    {
        ++cells;
        if (const auto call = std::exchange(whileFilling, nullptr)) {
            call();
        }
        platform::TableCell cell;
        cell.text = at(path.section).rows.at(static_cast<std::size_t>(path.row));
        return cell;
    }
    bool canEditRow(IndexPath /*path*/) override { return true; }
    std::vector<platform::SwipeAction> trailingSwipeActions(IndexPath /*path*/) override
    {
        platform::SwipeAction action;
        action.style = actionStyle;
        action.handler = handler;
        return {action};
    }
    void rowTapped(IndexPath path) override { tapped.push_back(path); }

private:
    const ScriptedSection& at(int section) const
    {
        return sections.at(static_cast<std::size_t>(section));
    }
};

/// "#A a b -foot": headers, cells and footers as a line.
std::string shown(const TableItemModel& model)
{
    std::string line;
    for (int row = 0; row < model.rowCount(); ++row) {
        const auto value = [&](int role) { return model.data(model.index(row), role); };
        const auto kind =
            static_cast<TableItemModel::RowKind>(value(TableItemModel::KindRole).toInt());
        const auto title = toUtf8(value(TableItemModel::TitleRole).toString());
        line += line.empty() ? "" : " ";
        line += kind == TableItemModel::RowKind::Header ? "#" + title
                : kind == TableItemModel::RowKind::Footer
                    ? "-" + title
                    : toUtf8(value(TableItemModel::TextRole).toString());
    }
    return line;
}

struct TableItemModelTest : testing::Test {
    ScriptedSource source;
    TableItemModel model{source};
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(TableItemModelTest, FlattensSectionsAsTheControllerAnswers)
{
    struct {
        std::vector<ScriptedSection> sections;
        const char* expected;
        const char* why;
    } cases[] = {
        {{}, "", "no sections"},
        {{{"A", {"a", "b"}, {}}, {"B", {"c"}, {}}}, "#A a b #B c", "headers over cells"},
        {{{{}, {"a"}, {}}}, "a", "no title, no header"},
        {{{"", {"a"}, {}}}, "# a", "an empty title is a header"},
        {{{"A", {}, {}}, {{}, {}, {}}, {"C", {}, {}}}, "#A #C", "sections without rows"},
        {{{"A", {"a"}, "foot"}, {{}, {"b"}, {}}}, "#A a -foot b", "a footer ends its section"},
    };
    // One model through all of them: each reload must tell its changes right.
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        source.sections = c.sections;
        model.reloadData();
        EXPECT_EQ(shown(model), c.expected);
    }

    source.sections = cases[1].sections;
    model.reloadData();
    EXPECT_EQ(model.listRow({1, 0}), 4) << "the cell and not its header";
    EXPECT_EQ(model.listRow({1, 1}), -1);
}

TEST_F(TableItemModelTest, TellsOneRunOfChangedRowsWithoutAReset)
{
    source.sections = {{"A", {"a", "b"}, {}}, {"B", {"c"}, {}}};
    model.reloadData();
    QSignalSpy reset{&model, &QAbstractItemModel::modelReset};
    QSignalSpy removed{&model, &QAbstractItemModel::rowsRemoved};
    QSignalSpy inserted{&model, &QAbstractItemModel::rowsInserted};

    source.sections[0].rows = {"b"};
    model.reloadData();
    EXPECT_EQ(shown(model), "#A b #B c");
    source.sections[1].rows = {"c", "d", "e"};
    model.reloadData();
    EXPECT_EQ(shown(model), "#A b #B c d e");

    EXPECT_EQ(removed.count(), 1);
    EXPECT_EQ(inserted.count(), 1);
    EXPECT_EQ(reset.count(), 0);
}

TEST_F(TableItemModelTest, CountsOncePerReloadAndFillsACellWhenItIsDrawn)
{
    source.sections = {{"A", {"a", "b"}, {}}, {"B", {"c"}, {}}};
    model.reloadData();
    EXPECT_EQ(source.counts, 2);
    source.cells = 0;

    for (int role = TableItemModel::KindRole; role <= TableItemModel::SelectedRole; ++role) {
        model.data(model.index(2), role);
    }

    EXPECT_EQ(source.cells, 1);
    EXPECT_EQ(source.counts, 2);
}

TEST_F(TableItemModelTest, ARemovedRowStaysAwayUntilTheNextReload)
{
    source.sections = {{"A", {"a", "b", "c"}, {}}, {"B", {"d"}, {}}};
    source.handler = [](const auto& completed) { completed(true); };
    model.reloadData();

    model.trailingActions(2);
    // Another row is swiped open as well.
    model.trailingActions(5);
    model.triggerAction(2, 0);

    EXPECT_EQ(shown(model), "#A a c #B d");
    model.tap(2);
    EXPECT_EQ(source.tapped, (std::vector<IndexPath>{{0, 2}}));
    EXPECT_EQ(model.rowForIndexTitle(1), 3);
    model.reloadData();
    EXPECT_EQ(shown(model), "#A a b c #B d");
}

TEST_F(TableItemModelTest, KeepsTheRowOfAnActionThatRemovesNothing)
{
    source.sections = {{{}, {"a", "b"}, {}}};
    std::function<void(bool)> late;
    struct {
        platform::ActionStyle style;
        std::function<void(const std::function<void(bool)>&)> handler;
        const char* why;
    } cases[] = {
        {platform::ActionStyle::Normal, [](const auto& done) { done(true); }, "not destructive"},
        {platform::ActionStyle::Destructive, [](const auto& done) { done(false); }, "failed"},
        {platform::ActionStyle::Destructive,
         [this](const auto& done) {
             model.reloadData();
             done(true);
         },
         "reloaded before the end"},
        {platform::ActionStyle::Destructive, [&](const auto& done) { late = done; }, "not yet"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        source.actionStyle = c.style;
        source.handler = c.handler;
        model.reloadData();
        model.trailingActions(0);
        model.triggerAction(0, 0);
        EXPECT_EQ(shown(model), "a b");
    }
    late(true);
    EXPECT_EQ(shown(model), "b");
}

TEST_F(TableItemModelTest, LosesNoReloadThatComesWhileItAsks)
{
    source.sections = {{{}, {"a"}, {}}};
    source.whileCounting = [this] {
        source.sections = {{{}, {"a", "b"}, {}}, {"C", {}, {}}};
        model.reloadData();
    };
    model.reloadData();
    EXPECT_EQ(shown(model), "a b #C");

    source.whileFilling = [this] {
        source.sections = {{{}, {"a", "x", "y"}, {}}};
        model.reloadData();
    };
    model.reloadRow({0, 1});
    model.data(model.index(1), TableItemModel::TextRole);
    QCoreApplication::processEvents();
    EXPECT_EQ(shown(model), "a x y");
}

TEST_F(TableItemModelTest, FindsTheRowOfAnIndexTitle)
{
    source.sections = {{"A", {"a"}, {}}, {"B", {}, {}}, {"C", {"c"}, {}}};
    model.reloadData();

    EXPECT_EQ(model.rowForIndexTitle(0), 0);
    EXPECT_EQ(model.rowForIndexTitle(1), 2);
    EXPECT_EQ(model.rowForIndexTitle(2), 3);
    EXPECT_EQ(model.rowForIndexTitle(3), -1) << "no section bears the title";
    EXPECT_EQ(model.rowForIndexTitle(4), -1);
    EXPECT_EQ(model.sectionTitle(4), QStringLiteral("C"));
    EXPECT_EQ(model.nextHeaderRow(0), 2);
    EXPECT_EQ(model.nextHeaderRow(3), -1);
}

TEST_F(TableItemModelTest, RemembersTheTappedRowUntilItIsDeselected)
{
    source.sections = {{"A", {"a", "b"}, {}}};
    model.reloadData();

    model.tap(0);
    EXPECT_FALSE(model.selectedPath()) << "a header is no row";
    model.tap(2);
    EXPECT_EQ(model.selectedPath(), (IndexPath{0, 1}));
    model.deselect({0, 0});
    EXPECT_TRUE(model.selectedPath());
    model.deselect({0, 1});
    EXPECT_FALSE(model.selectedPath());
}

} // namespace
} // namespace lumora::qt
