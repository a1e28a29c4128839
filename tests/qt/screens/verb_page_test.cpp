// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/screens/verb_detail_screen.h"
#include "support/window_fixture.h"

#include <QClipboard>

namespace lumora::qt {
namespace {

constexpr QSize kPhone{390, 844};
constexpr QSize kTablet{1024, 900};

/// What a verb's page tells and where it leads. No language is installed, so
/// each text is its key.
struct VerbPage : WindowFixture {
    void startAt(const char* verb, const QSize& size)
    {
        start(size);
        touch(verb);
        ASSERT_TRUE(settled("mood0"));
    }

    VerbDetailScreen& screen() const
    {
        const auto panes = split().collapsed() ? split().primary() : split().secondary();
        return *qobject_cast<VerbDetailScreen*>(panes.last());
    }

    /// The row of the table that the keyboard is on; -1 for none.
    int currentRow() const { return find("list")->property("currentIndex").toInt(); }

    /// The middle of the words of a row.
    QPoint wordsOf(int row) const
    {
        QQuickItem* cell = nullptr;
        QMetaObject::invokeMethod(find("list"), "itemAtIndex", Q_RETURN_ARG(QQuickItem*, cell),
                                  Q_ARG(int, row));
        return cell == nullptr ? QPoint{} : cell->mapToScene({60, cell->height() / 2}).toPoint();
    }

    void hold(const QPoint& point) const
    {
        auto* const window = application->window();
        QTest::mousePress(window, Qt::LeftButton, {}, point);
        QTest::qWait(QGuiApplication::styleHints()->mousePressAndHoldInterval() + 300);
        QTest::mouseRelease(window, Qt::LeftButton, {}, point);
    }

    void expectGone(const char* name) const
    {
        EXPECT_TRUE(until([&] { return find(name) == nullptr; })) << name;
    }
};

TEST_F(VerbPage, ARowLeadsToItsSheetByFingerMouseAndKeyboard)
{
    startAt("aller", kPhone);
    ASSERT_TRUE(until([&] { return find("list")->property("count").toInt() > 4; }));
    // The translation, and two rows of the present.
    find("list")->parentItem()->forceActiveFocus(Qt::TabFocusReason);
    keys("Home, Down, Down");
    const int row = currentRow();
    for (const char* key : {"Return", "Menu"}) {
        keys(key);
        ASSERT_TRUE(settled("saySlowly")) << key;
        keys("Esc");
        expectGone("saySlowly");
        EXPECT_EQ(currentRow(), row) << "the keyboard is where it was";
    }

    hold(wordsOf(row));
    touch("copyRow");
    EXPECT_TRUE(until([] { return QGuiApplication::clipboard()->text() == "tu vas"; }));
    EXPECT_TRUE(until([this] { return find("notice") != nullptr; })) << "says that it was copied";
    expectGone("saySlowly");
    hold(wordsOf(row));
    touch("copyForm");
    EXPECT_TRUE(until([] { return QGuiApplication::clipboard()->text() == "vas"; }));
    expectGone("saySlowly");
    hold(wordsOf(row));
    touch("formTense");
    expectGone("saySlowly");
    touch("sheetDone");
    expectGone("sheetDone");
    QTest::mouseClick(application->window(), Qt::RightButton, {}, wordsOf(row));
    touch("sheetDone");
    expectGone("sheetDone");
    // The title of the tense.
    QTest::mouseClick(application->window(), Qt::LeftButton, {}, wordsOf(1));
    EXPECT_TRUE(settled("sheetDone"));
    EXPECT_EQ(find("saySlowly"), nullptr);
}

TEST_F(VerbPage, TheSameFormElsewhereIsShownWhereItStands)
{
    for (const auto& size : {kPhone, kTablet}) {
        SCOPED_TRACE(size.width());
        startAt("aller", size);
        if (size == kPhone) {
            hold(wordsOf(4));
        } else {
            find("play")->forceActiveFocus(Qt::TabFocusReason);
            keys("Menu");
        }
        touch("otherPlace0");
        expectGone("otherPlace0");
        if (size == kPhone) {
            EXPECT_EQ(screen().selectedMood(), 3);
            EXPECT_EQ(currentRow(), 2);
        } else {
            EXPECT_EQ(application->window()->activeFocusItem()->objectName(), "play");
        }
        application.reset();
    }
}

TEST_F(VerbPage, NeighboursLinksAndTheWayBack)
{
    for (const auto& size : {kPhone, kTablet}) {
        SCOPED_TRACE(size.width());
        startAt("aller", size);
        EXPECT_EQ(screen().previousVerb(), "");
        keys("Ctrl+PgDown");
        ASSERT_TRUE(until([&] { return screen().title() == "avoir"; }));
        touch("nextVerb");
        ASSERT_TRUE(until([&] { return screen().title() == "être"; }));
        keys("Ctrl+PgUp, Ctrl+PgUp");
        ASSERT_TRUE(until([&] { return screen().title() == "aller"; }));
        EXPECT_EQ(split().primary().size(), size == kPhone ? 2 : 1);

        if (find("verbLink.être") == nullptr) {
            touch("verbCard");
        }
        touch("verbLink.être");
        ASSERT_TRUE(until([&] { return screen().title() == "être"; }));
        touch("backButton");
        ASSERT_TRUE(until([&] { return screen().title() == "aller"; }));
        EXPECT_NE(settled("verbLink.être"), nullptr) << "open, as it was left";
        application.reset();
    }
}

TEST_F(VerbPage, AFingerMovesAsideFromMoodToMood)
{
    startAt("aller", kPhone);
    const auto expectMood = [&](int mood) {
        EXPECT_TRUE(until([&] { return screen().selectedMood() == mood; })) << mood;
    };
    drag({300, 500}, {120, 505});
    expectMood(1);
    drag({300, 500}, {260, 500});
    expectMood(1);
    drag({100, 500}, {300, 495});
    expectMood(0);
    drag({100, 500}, {300, 495});
    expectMood(0);
}

} // namespace
} // namespace lumora::qt
