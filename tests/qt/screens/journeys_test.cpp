// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/window_fixture.h"

#include <gmock/gmock.h>

namespace lumora::qt {
namespace {

constexpr QSize kPhone{390, 844};
constexpr QSize kTablet{1024, 768};

/// Whole ways through the program. No language is installed, so each text is
/// its key.
struct Journey : WindowFixture {
    int modals() const { return application->presenter().modals()->count(); }

    static QString topTitle(const QList<QObject*>& screens)
    {
        return screens.isEmpty() ? QString{} : qobject_cast<Screen*>(screens.last())->title();
    }

    /// The rows of the list on top.
    QList<QQuickItem*> rows() const
    {
        QList<QQuickItem*> rows;
        auto* const list = find("list");
        const int count = list == nullptr ? 0 : list->property("count").toInt();
        for (int index = 0; index < count; ++index) {
            QQuickItem* row = nullptr;
            QMetaObject::invokeMethod(list, "itemAtIndex", Q_RETURN_ARG(QQuickItem*, row),
                                      Q_ARG(int, index));
            if (row != nullptr && row->property("isCell").toBool()) {
                rows.append(row);
            }
        }
        return rows;
    }

    /// The verbs of the list on top.
    QStringList verbs() const
    {
        QStringList names;
        for (const auto* row : rows()) {
            names.append(row->objectName());
        }
        return names;
    }

    void openOptions() const
    {
        touch("bar.menu", "IconSettings");
        ASSERT_TRUE(settled("bar.done"));
    }

    void closeOptions() const
    {
        touch("bar.done");
        ASSERT_TRUE(until([&] { return modals() == 0; }));
    }

    /// Goes to a row of the options with the keyboard.
    QQuickItem* option(const QString& label) const
    {
        const auto isThere = [&] {
            const auto* current = find("list")->property("currentItem").value<QQuickItem*>();
            return current != nullptr && current->objectName() == label;
        };
        keys("Home");
        for (auto row = rows().size(); row > 0 && !isThere(); --row) {
            keys("Down");
        }
        return settled(label);
    }

    void clickIn(QQuickItem* parent, const QString& name) const
    {
        const auto* item = parent == nullptr ? nullptr : WindowDriver::findIn(*parent, name);
        ASSERT_NE(item, nullptr);
        QTest::mouseClick(application->window(), Qt::LeftButton, {}, middleOf(*item));
    }
};

TEST_F(Journey, ChooseTheVoiceInTheMenuOfAVerb)
{
    start(kPhone);
    touch("aller", "bar.more", "voice1");
    ASSERT_TRUE(until([&] { return find("verbMenu") == nullptr && find("voice1") == nullptr; }));
    const auto file = folder / "config" / "view.json";
    EXPECT_THAT(support::contentOf(file), testing::HasSubstr("man\""));

    touch("backButton", "être", "bar.more");
    ASSERT_TRUE(settled("voice1"));
    EXPECT_TRUE(find("voice1")->property("checked").toBool());
    keys("Up, Return");
    EXPECT_TRUE(until([&] { return find("voice0") == nullptr; }));
    EXPECT_THAT(support::contentOf(file), testing::HasSubstr("woman\""));
}

TEST_F(Journey, HaveATenseReadAndStopIt)
{
    start(kPhone);
    touch("aller", "playTense0");
    ASSERT_TRUE(settled("stopSpeaking"));
    EXPECT_EQ(find("sheetDone"), nullptr) << "what the tense is for was not asked";
    keys("Esc");
    EXPECT_TRUE(until([&] { return find("stopSpeaking") == nullptr; }));
    EXPECT_NE(find("playTense0"), nullptr) << "the page is still there";

    touch("play");
    touch("stopSpeaking");
    EXPECT_TRUE(until([&] { return find("stopSpeaking") == nullptr; }));

    // It goes on while the window turns, and ends by itself.
    keys("Ctrl+Space");
    ASSERT_TRUE(settled("stopSpeaking"));
    turn({1024, 768});
    ASSERT_TRUE(settled("tenses"));
    EXPECT_TRUE(until([&] { return find("stopSpeaking") == nullptr; }));
}

TEST_F(Journey, ReadAVerbInLargeText)
{
    start({1024, 768});
    touch("aller");
    ASSERT_TRUE(settled("tenses"));
    const auto rowHeight = [&] { return find("play")->height(); };
    const auto before = rowHeight();
    application->appearance().setDesktop({.textScale = 2});
    EXPECT_TRUE(until([&] { return find("tenses") == nullptr && find("play") != nullptr; }));
    EXPECT_TRUE(until([&] { return rowHeight() > before; }));
}

TEST_F(Journey, ClearTheHistorySwitchItOffAndItsTabGoes)
{
    start(kPhone);
    touch("aller", "backButton", "tab2");
    ASSERT_TRUE(until([&] { return verbs() == QStringList{"aller"}; }));

    openOptions();
    ASSERT_NE(option("settings.history_clear"), nullptr);
    touch("settings.history_clear", "answer0");
    closeOptions();
    EXPECT_TRUE(until([&] { return verbs().isEmpty(); }));

    openOptions();
    clickIn(option("settings.history"), "switch");
    closeOptions();
    EXPECT_TRUE(until([&] { return find("tab1") != nullptr && find("tab2") == nullptr; }));
    EXPECT_TRUE(find("tab0")->property("checked").toBool());
}

TEST_F(Journey, ChangeTheLanguageAndSeeTheListSortedByIt)
{
    start(kTablet);
    ASSERT_TRUE(settled("aller"));
    const QStringList byFrench{"aller", "avoir", "être", "évanouir (s')", "falloir", "pouvoir"};
    const QStringList byGerman{"avoir", "pouvoir", "évanouir (s')", "aller", "être", "falloir"};
    EXPECT_EQ(verbs(), byFrench);

    openOptions();
    clickIn(option("settings.sortby"), "segment0");
    ASSERT_NE(option("settings.translations"), nullptr);
    touch("settings.translations", "answer4");
    closeOptions();
    EXPECT_TRUE(until([&] { return verbs() == byGerman; })) << verbs().join(' ').toStdString();
}

TEST_F(Journey, PullTheMenuInAndPushItOut)
{
    start(kPhone);
    ASSERT_TRUE(settled("aller"));
    drag({4, 400}, {220, 410});
    ASSERT_TRUE(until([&] { return modals() == 1; }));
    EXPECT_EQ(settled("sideMenu")->x(), 0);
    EXPECT_EQ(split().primary().size(), 1) << "the row below was not tapped";

    drag({250, 500}, {20, 500});
    EXPECT_TRUE(until([&] { return modals() == 0; }));

    touch("bar.menu");
    ASSERT_TRUE(settled("sideMenu"));
    QTest::mouseClick(application->window(), Qt::LeftButton, {}, {370, 500});
    EXPECT_TRUE(until([&] { return modals() == 0; }));

    touch("bar.menu", "IconMoreApps");
    ASSERT_TRUE(settled("AppIconGerman"));
    touch("bar.done");
    EXPECT_TRUE(until([&] { return modals() == 0; }));
}

TEST_F(Journey, FromATypedFormToItsPlaceInItsVerb)
{
    const auto atForm = [&] {
        return split().primary().back()->property("openedTense").toInt() >= 0;
    };
    start(kPhone);
    ASSERT_TRUE(settled("aller"));
    keys("Ctrl+F");
    type("vas");
    ASSERT_TRUE(settled("reading0"));
    EXPECT_EQ(find("nothingFound")->property("text"), "search.did_you_mean");
    keys("Down");
    EXPECT_TRUE(find("reading0")->hasActiveFocus());
    keys("Up");
    EXPECT_TRUE(find("Search")->hasActiveFocus());
    keys("Down, Return");
    ASSERT_TRUE(until([&] { return split().primary().size() == 2 && find("list") != nullptr; }));
    QQuickItem* row = nullptr;
    ASSERT_TRUE(until([&] {
        row = find("list")->property("currentItem").value<QQuickItem*>();
        return row != nullptr && row->property("opened").toBool();
    }));
    EXPECT_EQ(row->property("accessibleName"), "tu vas");

    // Enter in the field leads there too, once; the next one is the row's.
    keys("Esc, Ctrl+F, Return, Return");
    ASSERT_TRUE(until([&] { return split().primary().size() == 2; }));
    EXPECT_TRUE(atForm());
    ASSERT_TRUE(settled("saySlowly"));
    keys("Esc");
    ASSERT_TRUE(until([&] { return find("saySlowly") == nullptr; }));
    keys("Esc");

    // The option that finds the form, and what is found then.
    touch("searchForms");
    ASSERT_TRUE(settled("bar.done"));
    ASSERT_TRUE(until([&] {
        const auto* current = find("list")->property("currentItem").value<QQuickItem*>();
        return current != nullptr && current->objectName() == "settings.includeconjugations";
    }));
    keys("Space");
    closeOptions();
    ASSERT_TRUE(until([&] { return verbs() == QStringList{"aller"}; }));
    ASSERT_TRUE(settled("reading0"));
    EXPECT_EQ(find("nothingFound"), nullptr);
    EXPECT_EQ(find("searchForms"), nullptr);
    const auto* first = rows().front();
    EXPECT_GE(first->mapToScene({}).y(), find("reading0")->mapToScene({0, 44}).y()) << "below it";
    keys("Ctrl+F, Down, Down, Return");
    ASSERT_TRUE(until([&] { return split().primary().size() == 2; }));
    EXPECT_FALSE(atForm()) << "the row and not the card";
}

TEST_F(Journey, WithTheKeyboardAlone)
{
    start(kPhone);
    ASSERT_TRUE(settled("aller"));
    // Finds a verb, opens it and comes back.
    keys("Ctrl+F");
    type("voir");
    keys("Esc");
    type("a");
    ASSERT_TRUE(until([&] { return verbs() == QStringList({"aller", "avoir"}); }));
    keys("Down, Return");
    ASSERT_TRUE(until([&] { return split().primary().size() == 2; }));
    keys("Esc");
    EXPECT_EQ(split().primary().size(), 1);

    // Makes another one a favourite by its menu.
    keys("Ctrl+F, Esc");
    ASSERT_TRUE(until([&] { return verbs().size() == 6; }));
    keys("Down, Down, Menu");
    ASSERT_TRUE(settled("menuAction0"));
    keys("Down, Return");
    ASSERT_TRUE(until([&] { return find("menuAction0") == nullptr; }));
    keys("Ctrl+2");
    EXPECT_TRUE(until([&] { return verbs() == QStringList{"avoir"}; }));

    // Changes a switch and segments.
    keys("F10");
    ASSERT_TRUE(settled("IconSettings"));
    keys("Down, Return");
    ASSERT_TRUE(settled("settings.sortby"));
    keys("Down, Space");
    EXPECT_FALSE(application->settings().boolForKey("IncludeEnglish"));
    keys("Down, Down, Left");
    EXPECT_FALSE(application->settings().boolForKey("SortByLang"));
    keys("Esc");
    EXPECT_TRUE(until([&] { return modals() == 0; }));
    keys("Ctrl+1");
    EXPECT_TRUE(until([&] { return verbs().size() == 6; }));
}

TEST_F(Journey, NarrowTheListByItsChips)
{
    const QStringList all{"aller", "avoir", "être", "évanouir (s')", "falloir", "pouvoir"};
    start(kTablet);
    touch("chipCommon", "chipIrregular");
    ASSERT_TRUE(until([&] { return verbs() == QStringList{"aller"}; }));
    touch("aller");
    ASSERT_TRUE(settled("tenses"));
    EXPECT_EQ(find("nextVerb"), nullptr) << "the verbs that do not show are no neighbours";
    touch("Search");
    type("a");
    ASSERT_TRUE(until([&] {
        return verbs() == QStringList({"aller", "avoir"});
    })) << "a search is for all verbs";
    EXPECT_EQ(find("chipCommon"), nullptr);
    touch("searchClear", "chipCommon");
    ASSERT_TRUE(settled("aller"));
    EXPECT_EQ(verbs(), QStringList{"aller"}) << "it is irregular still";
    touch("chipIrregular");
    EXPECT_TRUE(until([&] { return verbs() == all; }));
}

TEST_F(Journey, GoFromPartToPartAndBackByKeys)
{
    start(kTablet);
    touch("aller");
    ASSERT_TRUE(settled("tenses"));
    const auto leadsTo = [&](const char* key, const char* name) {
        keys(key);
        return until([&] { return find(name) != nullptr && find(name)->hasActiveFocus(); });
    };
    keys("Ctrl+1");
    EXPECT_TRUE(leadsTo("F6", "tenses"));
    // Into a square and out of it: what has the keyboard is marked, and only that.
    const auto keyboardIsOn = [&](const char* name) {
        return until(
            [&] { return application->window()->activeFocusItem()->objectName() == name; });
    };
    const auto isMarked = [&](const char* name) {
        return find(name)->property("isCurrent").toBool();
    };
    EXPECT_TRUE(keyboardIsOn("tense0") && isMarked("tense0"));
    keys("Return");
    EXPECT_TRUE(keyboardIsOn("play") && !isMarked("tense0"));
    keys("Right");
    EXPECT_TRUE(keyboardIsOn("tense1") && isMarked("tense1"));
    EXPECT_TRUE(leadsTo("F6", "mood0"));
    EXPECT_TRUE(leadsTo("Right", "mood1"));
    EXPECT_TRUE(find("mood1")->property("checked").toBool());
    EXPECT_TRUE(leadsTo("Shift+F6", "tenses"));
    touch("avoir");
    ASSERT_TRUE(until([&] { return topTitle(split().secondary()) == QLatin1String("avoir"); }));
    EXPECT_TRUE(settled("mood1")->property("checked").toBool())
        << "the next verb opens in the same mood";
    EXPECT_EQ(find("menuAction0"), nullptr) << "a finger's tap asks for no menu";

    // By keys alone every layer can be left.
    turn(kPhone);
    keys("F1");
    ASSERT_TRUE(settled("keyHelp"));
    keys("Return");
    ASSERT_TRUE(until([&] { return find("keyHelp") == nullptr; }));
    keys("Alt+Left");
    ASSERT_TRUE(until([&] { return split().primary().size() == 1; }));
    ASSERT_TRUE(settled("aller"));
    // A page on its way out takes no keys.
    pictureAtRest();
    keys("Ctrl+F");
    ASSERT_TRUE(until(
        [&] { return application->window()->activeFocusItem()->inherits("QQuickTextInput"); }));
    type("av");
    ASSERT_TRUE(until([&] { return verbs() == QStringList{"avoir"}; }))
        << verbs().join(' ').toStdString()
        << find("Search")->property("text").toString().toStdString();
    keys("Return");
    ASSERT_TRUE(until([&] { return split().primary().size() == 2; }));
    QTest::mouseClick(application->window(), Qt::BackButton, {}, {200, 300});
    ASSERT_TRUE(until([&] { return split().primary().size() == 1; }));

    ASSERT_TRUE(settled("avoir"));
    // From the links above the options down to them, in sight.
    keys("Ctrl+,");
    ASSERT_TRUE(settled("website"));
    find("website")->forceActiveFocus(Qt::TabFocusReason);
    keys("Down");
    const auto* first = find("list")->property("currentItem").value<QQuickItem*>();
    ASSERT_NE(first, nullptr);
    EXPECT_TRUE(first->property("isCurrent").toBool()) << "its ring shows";
    const bool before = application->settings().boolForKey("IncludeEnglish");
    keys("Space");
    EXPECT_NE(application->settings().boolForKey("IncludeEnglish"), before);
}

TEST_F(Journey, TurnTheDeviceAndFindEverythingAsItWas)
{
    start({390, 360});
    touch("tab1", "tab0");
    ASSERT_TRUE(settled("aller"));
    // The height of a list is a guess until all its rows are made.
    ASSERT_TRUE(until([&] { return verbs().size() == 6; }));
    drag({200, 220}, {200, 130});
    ASSERT_TRUE(until([&] { return !find("list")->property("moving").toBool(); }));
    // A list that was not laid out from its top begins anywhere.
    const auto position = [&](const char* name = "list") {
        const auto* list = find(name);
        return list->property("contentY").toDouble() - list->property("originY").toDouble();
    };
    const auto before = position();
    EXPECT_GT(before, 40);
    turn({800, 360});
    EXPECT_EQ(position(), before);
    touch("tab1", "tab0");
    EXPECT_EQ(position(), before);

    touch("Search");
    type("a");
    openOptions();
    turn({390, 360});
    EXPECT_EQ(settled("modalSheet")->width(), 390);
    turn({800, 360});
    EXPECT_EQ(settled("modalSheet")->width(), 540);
    closeOptions();
    EXPECT_EQ(find("Search")->property("text").toString(), QLatin1String("a"));

    // A verb's tenses, as a table where squares have no room.
    touch("aller");
    EXPECT_EQ(find("tenses"), nullptr);
    turn({800, 700});
    ASSERT_TRUE(settled("tenses"));
    // Past the card, which is open on a wide page.
    for (int pull = 0; pull < 4; ++pull) {
        drag({600, 600}, {600, 150});
    }
    ASSERT_TRUE(until([&] { return !find("tenses")->property("moving").toBool(); }));
    EXPECT_GT(position("tenses"), 100);
    turn({390, 360});
    EXPECT_TRUE(until([&] { return position() > 50; }));
    turn({800, 700});
    EXPECT_TRUE(until([&] { return position("tenses") > 100; }));
}

} // namespace
} // namespace lumora::qt
