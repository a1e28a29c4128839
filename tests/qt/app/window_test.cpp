// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/window_fixture.h"

#include "detail/ce_round_progress_layer.h"
#include "qt/models/indicator_source.h"
#include "qt/screens/round_progress_item.h"
#include "qt/screens/table_screen.h"
#include "qt/screens/verb_detail_screen.h"
#include "support/environment_variable.h"

#include <QClipboard>

namespace lumora::qt {
namespace {

struct WindowTest : WindowFixture {
    void swipeOpen(const QQuickItem& row) const
    {
        const auto at = [&](double part) {
            return row.mapToScene({row.width() * part, row.height() / 2}).toPoint();
        };
        QTest::mousePress(application->window(), Qt::LeftButton, {}, at(0.8));
        for (double part = 0.75; part > 0.3; part -= 0.05) {
            QTest::mouseMove(application->window(), at(part));
        }
        QTest::mouseRelease(application->window(), Qt::LeftButton, {}, at(0.3));
    }
    QString topTitle(const QList<QObject*>& screens)
    {
        return screens.isEmpty() ? QString{} : qobject_cast<Screen*>(screens.last())->title();
    }
};

TEST_F(WindowTest, OnAPhoneATapOpensAVerbOverTheListAndBackReturns)
{
    start({390, 844});
    EXPECT_TRUE(split().collapsed());
    const auto atFirst = split().screenCount();

    tap("aller");
    EXPECT_EQ(split().primary().size(), 2);
    EXPECT_EQ(topTitle(split().primary()), QStringLiteral("aller"));

    tap("backButton");
    EXPECT_EQ(split().primary().size(), 1);
    EXPECT_TRUE(until([&] { return split().screenCount() == atFirst; }))
        << "the screen goes with its page";
}

TEST_F(WindowTest, AVerbStaysOpenWhenTheWindowChangesItsPanes)
{
    start({1024, 768});
    EXPECT_FALSE(split().collapsed());
    EXPECT_EQ(topTitle(split().secondary()), QString{});

    tap("aller");
    EXPECT_EQ(topTitle(split().secondary()), QStringLiteral("aller"));
    EXPECT_EQ(split().primary().size(), 1);
    tap("mood3");
    auto* screen = split().secondary().last();

    turn({390, 844});
    ASSERT_EQ(split().primary().size(), 2);
    EXPECT_EQ(split().primary().last(), screen) << "the same screen";
    EXPECT_EQ(qobject_cast<VerbDetailScreen*>(screen)->selectedMood(), 3);

    turn({1024, 768});
    EXPECT_EQ(split().secondary().last(), screen);
    EXPECT_EQ(split().primary().size(), 1);
}

TEST_F(WindowTest, APlayControlSpeaksItsRowOnAPhoneAndItsLineOnATablet)
{
    start({390, 844});
    tap("aller");
    for (const QSize size : {QSize{390, 844}, QSize{1024, 768}}) {
        SCOPED_TRACE(size.width());
        turn(size);
        auto* const control = settled("play");
        ASSERT_NE(control, nullptr);
        auto* const source = control->property("source").value<IndicatorSource*>();
        ASSERT_NE(source, nullptr);
        const auto progress = [&] {
            return dynamic_cast<const detail::CERoundProgressLayer&>(source->layer()).progress;
        };
        EXPECT_EQ(progress(), 0);
        tap("play");
        EXPECT_TRUE(until([&] { return progress() > 0.3F; }));
        const auto* ring = control->findChild<RoundProgressItem*>();
        ASSERT_NE(ring, nullptr);
        EXPECT_EQ(ring->source(), source);
        EXPECT_TRUE(until([&] { return progress() == 0; }));
    }
}

TEST_F(WindowTest, ASwipedRowMakesAFavouriteThatTheOtherTabShows)
{
    start({390, 844});
    auto* row = settled("avoir");
    ASSERT_NE(row, nullptr);
    swipeOpen(*row);
    ASSERT_TRUE(settled("swipeAction0"));
    EXPECT_LT(row->property("contentItem").value<QQuickItem*>()->x(), -80) << "the row gives way";
    tap("swipeAction0");
    EXPECT_EQ(row->property("image").toString(), QStringLiteral("ic_favorite_list"));

    tap("tab1");
    ASSERT_TRUE(until([&] { return find("avoir") != nullptr; }));
    EXPECT_EQ(find("aller"), nullptr);
    EXPECT_EQ(find("emptyState"), nullptr);

    swipeOpen(*find("avoir"));
    tap("swipeAction0");
    EXPECT_TRUE(until([&] { return find("emptyState") != nullptr; }));
}

TEST_F(WindowTest, ASearchTakesOneLineAndSaysWhenItIsInVain)
{
    start({390, 844});
    tap("Search");
    QGuiApplication::clipboard()->setText(QStringLiteral("être\r\n"));
    keys("Ctrl+V");
    EXPECT_TRUE(until([&] { return find("être") != nullptr && find("aller") == nullptr; }));
    type("q");
    EXPECT_TRUE(until([&] { return find("nothingFound") != nullptr; }));
}

TEST_F(WindowTest, AShortcutOpensItsTab)
{
    options.shortcut = "com.brindle.shortcut.favourite";
    start({390, 844});
    EXPECT_TRUE(settled("tab1")->property("checked").toBool());
}

TEST_F(WindowTest, AFileIsAskedForInTheWindowWhereTheDesktopHasNoDialog)
{
    // Where the question begins, and above the folder of this test.
    const support::EnvironmentVariable home{"HOME", folder.path()};
    std::filesystem::create_directory(folder / "inner");
    support::writeContent(folder / "inner" / "saved.json", "{}");
    start({360, 740});
    std::filesystem::path chosen;
    const auto ask = [&](platform::FileQuestion::Purpose purpose) {
        application->fileChooser().choose(
            {purpose, "Favourites and history", "Favourites and history", "json", "lumora"},
            [&](const auto& file) { chosen = file; });
    };

    ask(platform::FileQuestion::Purpose::Save);
    tap("fileSave");
    EXPECT_EQ(chosen, folder / "lumora.json");

    // With the keyboard: past the folders that are in the way.
    ask(platform::FileQuestion::Purpose::Open);
    ASSERT_TRUE(until([&] { return find("folder") != nullptr; }));
    const auto* list = find("files");
    const auto folders = application->fileChooser().location()->folders();
    keys("End");
    EXPECT_TRUE(list->hasActiveFocus());
    while (list->property("currentIndex").toInt() < folders.indexOf("inner")) {
        keys("Down");
    }
    keys("Return");
    tap("file");
    EXPECT_EQ(chosen, folder / "inner" / "saved.json");

    chosen.clear();
    ask(platform::FileQuestion::Purpose::Open);
    ASSERT_TRUE(until([&] { return find("file") != nullptr; }));
    keys("Space");
    EXPECT_EQ(chosen, folder / "inner" / "saved.json") << "it begins where the last file was";
    ask(platform::FileQuestion::Purpose::Open);
    tap("fileCancel");
    EXPECT_FALSE(application->fileChooser().asking());
}

TEST_F(WindowTest, AQuestionBlocksTheScreenUntilItIsAnswered)
{
    start({390, 844});
    int answer = -1;
    platform::ViewController asking;
    application->presenter().presentAlert(
        asking, {"Title",
                 "Message",
                 {{"One", platform::ActionStyle::Normal, [&] { answer = 0; }},
                  {"Two", platform::ActionStyle::Cancel, [&] { answer = 1; }}}});

    ASSERT_TRUE(settled("answer0"));
    EXPECT_FALSE(find("aller")->isEnabled());
    tap("answer0");
    EXPECT_EQ(answer, 0);
    tap("aller");
    EXPECT_EQ(split().primary().size(), 2);
}

/// Writes down when it comes and goes.
class LifecycleLog final : public platform::ViewController {
public:
    LifecycleLog(std::string name, std::string& calls) : name_{std::move(name)}, calls_{calls} {}
    void viewDidAppear() override { calls_ += name_ + "+ "; }
    void viewDidDisappear() override { calls_ += name_ + "- "; }

private:
    std::string name_;
    std::string& calls_;
};

TEST_F(WindowTest, AModalHidesWhatIsBelowOnAPhoneAndGoesBeforeAnythingElseIsDone)
{
    start({390, 844});
    std::string calls;
    const auto lower = std::make_shared<LifecycleLog>("lower", calls);
    const auto upper = std::make_shared<LifecycleLog>("upper", calls);
    auto& presenter = application->presenter();
    presenter.present(*lower, lower);
    presenter.present(*lower, upper);
    EXPECT_EQ(calls, "lower+ lower- upper+ ");

    turn({1024, 768});
    EXPECT_EQ(calls, "lower+ lower- upper+ lower+ ");

    calls.clear();
    presenter.dismiss(*upper, [&] { calls += "done "; });
    EXPECT_EQ(calls, "") << "it is still on its way out";
    EXPECT_TRUE(until([&] { return calls == "upper- done "; })) << calls;
    EXPECT_EQ(presenter.modals()->count(), 1);

    // The lower one takes along what is above it.
    calls.clear();
    presenter.present(*lower, upper);
    presenter.dismiss(*lower, [&] { calls += "done "; });
    EXPECT_TRUE(until([&] { return calls.ends_with("done "); })) << calls;
    EXPECT_EQ(presenter.modals()->count(), 0);
}

TEST_F(WindowTest, ARequestFromOutsideWithdrawsWhatWaitsForTheUser)
{
    start({390, 844});
    auto& presenter = application->presenter();
    int cancelled = 0;
    {
        // Asks, and is gone with its modal: only the cancelling answer may run.
        const auto asking = std::make_shared<platform::ViewController>();
        presenter.present(*asking, asking);
        const platform::ActionSheet sheet{
            std::nullopt,
            {{"Do", platform::ActionStyle::Normal, [] { FAIL() << "nobody chose it"; }},
             {"Leave", platform::ActionStyle::Cancel, [&] { ++cancelled; }}}};
        presenter.presentActionSheet(*asking, sheet, {});
        presenter.presentActionSheet(*asking, sheet, {});
    }
    ASSERT_TRUE(presenter.asking());

    application->serve({QStringLiteral("com.brindle.shortcut.other"), {}, {}});
    EXPECT_TRUE(presenter.asking()) << "nothing is known of that";

    application->serve({QStringLiteral("com.brindle.shortcut.favourite"), {}, {}});

    EXPECT_FALSE(presenter.asking());
    EXPECT_EQ(cancelled, 2);
    EXPECT_TRUE(until([&] { return presenter.modals()->count() == 0; }));
    EXPECT_TRUE(settled("tab1")->property("checked").toBool());
}

} // namespace
} // namespace lumora::qt
