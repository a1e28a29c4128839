// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/base/text_conversion.h"
#include "qt/base/translations.h"
#include "qt/screens/home_screen.h"
#include "support/window_fixture.h"

#include <QAccessible>
#include <QMetaEnum>

#include <algorithm>
#include <set>
#include <sstream>

namespace lumora::qt {
namespace {

std::string described(const QAccessibleInterface& object)
{
    std::ostringstream text;
    text << QMetaEnum::fromType<QAccessible::Role>().valueToKey(object.role()) << ": "
         << toUtf8(object.text(QAccessible::Name)) << (object.state().checked ? " (checked)" : "")
         << (object.state().selected ? " (selected)" : "");
    return text.str();
}

/// What is on the screen, as the toolkit tells a screen reader of it.
struct ScreenReaderTest : WindowFixture {
    /// The toolkit tells nothing before somebody listens.
    ScreenReaderTest() { QAccessible::setActive(true); }
    ~ScreenReaderTest() override { QAccessible::setActive(false); }

    Translations translations{{QStringLiteral("en")}};

    /// These are there, in this order, and nothing is without a name, of no
    /// known kind or there twice.
    void expectHeard(const char* where, const std::vector<std::string>& expected) const
    {
        SCOPED_TRACE(where);
        pictureAtRest();
        std::vector<std::string> heard;
        std::set<std::string> seen;
        listen(*QAccessible::queryAccessibleInterface(application->window()), heard, seen);
        auto next = expected.begin();
        for (const auto& text : heard) {
            next += next != expected.end() && *next == text;
        }
        EXPECT_EQ(next, expected.end())
            << (next == expected.end() ? "" : *next) << " is missing in\n"
            << testing::PrintToString(heard);
    }

    /// What is heard of an object and all in it that shows.
    static void listen(const QAccessibleInterface& object, std::vector<std::string>& heard,
                       std::set<std::string>& seen)
    {
        if (object.state().invisible) {
            return;
        }
        heard.push_back(described(object));
        expectUsable(object);
        std::ostringstream place;
        const auto area = object.rect();
        place << heard.back() << area.x() << ' ' << area.y() << ' ' << area.width() << ' '
              << area.height();
        EXPECT_TRUE(seen.insert(place.str()).second || !object.state().focusable)
            << heard.back() << " is there twice";
        for (int child = 0; child < object.childCount(); ++child) {
            if (const auto* inside = object.child(child)) {
                listen(*inside, heard, seen);
            }
        }
    }

    /// What is heard of that kind and by that name; null where nothing is.
    static QAccessibleInterface* findHeard(QAccessibleInterface& object, QAccessible::Role role,
                                           const QString& name)
    {
        if (object.state().invisible) {
            return nullptr;
        }
        if (object.role() == role && object.text(QAccessible::Name) == name) {
            return &object;
        }
        for (int child = 0; child < object.childCount(); ++child) {
            auto* const inside = object.child(child);
            if (auto* found = inside == nullptr ? nullptr : findHeard(*inside, role, name)) {
                return found;
            }
        }
        return nullptr;
    }

    /// Does as assistive technology does, and says what it was done to.
    QAccessibleInterface*
    press(QAccessible::Role role, const char* name,
          const QString& action = QAccessibleActionInterface::pressAction()) const
    {
        QAccessibleInterface* found = nullptr;
        EXPECT_TRUE(until([&] {
            found = findHeard(*QAccessible::queryAccessibleInterface(application->window()), role,
                              QString::fromUtf8(name));
            return found != nullptr;
        })) << name;
        if (found != nullptr) {
            EXPECT_TRUE(found->actionInterface()->actionNames().contains(action)) << name;
            found->actionInterface()->doAction(action);
        }
        return found;
    }

    static void expectUsable(const QAccessibleInterface& object)
    {
        static const std::set<QAccessible::Role> kGeneral{QAccessible::NoRole, QAccessible::Client,
                                                          QAccessible::Grouping, QAccessible::Pane,
                                                          QAccessible::LayeredPane};
        static const std::set<QAccessible::Role> kOperable{
            QAccessible::Button,  QAccessible::CheckBox,     QAccessible::RadioButton,
            QAccessible::PageTab, QAccessible::EditableText, QAccessible::MenuItem};
        static const std::set<QAccessible::Role> kNamed{QAccessible::ListItem, QAccessible::Heading,
                                                        QAccessible::List, QAccessible::Dialog,
                                                        QAccessible::StaticText};
        const auto role = object.role();
        const auto state = object.state();
        const auto name = object.text(QAccessible::Name);
        EXPECT_FALSE(state.focusable && kGeneral.contains(role))
            << described(object) << " does not say what it is";
        EXPECT_FALSE((kOperable.contains(role) || kNamed.contains(role)) &&
                     name.trimmed().isEmpty())
            << described(object) << " has no name";
        EXPECT_FALSE(role == QAccessible::Button && state.checked && !state.checkable)
            << described(object);
        // A play control is as high as its row, and stands beside the form.
        const int least = name.startsWith("Play ") ? 30 : 44;
        EXPECT_FALSE(kOperable.contains(role) &&
                     std::min(object.rect().width(), object.rect().height()) < least)
            << described(object) << " is too small to touch";
    }
};

TEST_F(ScreenReaderTest, HearsOfEverythingOnAPhone)
{
    start({390, 844});
    expectHeard("home",
                {"Button: Menu", "Heading: French verbs", "EditableText: Verb, meaning or form",
                 "List: Verbs", "Heading: A", "ListItem: aller, go",
                 "PageTabList: ", "PageTab: Verbs (selected)", "PageTab: History"});
    tap("tab1");
    expectHeard("no favourites", {"List: Favourites", "PageTab: Favourites (selected)"});
    tap("Search");
    type("vas");
    expectHeard("a reading", {"StaticText: No verb found as typed. Did you mean \u2026",
                              "Button: aller, Present \u2013 tu vas",
                              "Button: Search the conjugated forms too"});
    tap("reading0");
    expectHeard("its form", {"Heading: Present", "ListItem: je vais",
                             "ListItem: tu vas, the form that was searched for"});
    tap("backButton", "searchClear", "Search");
    type("a");
    expectHeard("search", {"Button: Clear the search", "ListItem: aller, go"});
    tap("aller", "bar.favourite");
    expectHeard("verb",
                {"Button: Back", "Heading: aller", "Button: Share", "CheckBox: Favourite (checked)",
                 "RadioButton: Indicative (checked)", "RadioButton: Other", "List: aller",
                 "ListItem: go", "Heading: Present", "Button: Play this tense: Present",
                 "ListItem: je vais", "Button: Play je vais", "Heading: Imperfect, not in use"});
    tap("bar.export");
    expectHeard("ways out",
                {"Dialog: aller", "Heading: aller", "Button: Copy text", "Button: Cancel"});
    tap("share1");
    expectHeard("saving",
                {"Dialog: aller", "EditableText: File name", "Button: Cancel", "Button: Save"});
    tap("fileCancel", "backButton", "searchClear", "tab0");
    expectHeard("a favourite", {"ListItem: aller, go, Favourite", "ListItem: avoir, have"});
    tap("bar.menu");
    expectHeard("menu", {"PopupMenu: Lumora", "List: Lumora", "ListItem: Settings"});
    tap("IconMoreApps");
    expectHeard("more programs", {"Heading: More apps", "Button: Done", "List: More apps",
                                  "ListItem: English Verbs"});
    tap("bar.done", "bar.menu", "IconSettings");
    expectHeard("options",
                {"Heading: Settings", "List: Settings", "Heading: Lumora",
                 "Button: https://www.brindle.example", "Heading: Search",
                 "CheckBox: Search translations (English) (checked)",
                 "ListItem: Search, Start of word", "RadioButton: Start of word (checked)",
                 "CheckBox: Search conjugated forms", "ListItem: Speech rate, 100%"});
    tap("bar.backup");
    expectHeard("a question", {"Dialog: Lumora", "Button: Restore…", "Button: Cancel"});
}

TEST_F(ScreenReaderTest, PressesOneOfEveryKind)
{
    start({390, 844});
    settled("aller");
    press(QAccessible::PageTab, "Favourites");
    EXPECT_EQ(split().home()->selectedTab(), 1);
    press(QAccessible::PageTab, "Verbs");
    EXPECT_EQ(split().home()->selectedTab(), 0);

    press(QAccessible::CheckBox, "Common");
    expectHeard("narrowed",
                {"CheckBox: Common (checked)", "CheckBox: Irregular", "ListItem: aller, go"});
    EXPECT_EQ(find("avoir"), nullptr);
    press(QAccessible::CheckBox, "Common");
    settled("avoir");

    press(QAccessible::Button, "Menu");
    settled("IconSettings");
    expectHeard("drawer", {"StaticText: You are here: Verbs", "ListItem: Settings"});
    press(QAccessible::ListItem, "Settings");
    settled("bar.done");
    EXPECT_TRUE(until([&] { return find("tab0") == nullptr; })) << "what lies below is covered";
    const auto& settings = application->settings();
    for (const auto& action :
         {QAccessibleActionInterface::pressAction(), QAccessibleActionInterface::toggleAction()}) {
        const bool before = settings.boolForKey("IncludeEnglish");
        const auto* box = press(QAccessible::CheckBox, "Search translations (English)", action);
        EXPECT_NE(settings.boolForKey("IncludeEnglish"), before);
        EXPECT_EQ(box->state().checked, settings.boolForKey("IncludeEnglish"));
    }
    press(QAccessible::ListItem, "Search translations (English)");
    EXPECT_FALSE(settings.boolForKey("IncludeEnglish"));
    press(QAccessible::RadioButton, "Anywhere");
    EXPECT_EQ(settings.stringForKey("SearchFrom"), "W");
    press(QAccessible::ListItem, "Search, Anywhere", QAccessibleActionInterface::setFocusAction());
    keys("Left");
    EXPECT_EQ(settings.stringForKey("SearchFrom"), "S") << "the table has the keyboard";
    press(QAccessible::Button, "Done");
    settled("aller");

    press(QAccessible::ListItem, "aller, go");
    settled("mood2");
    for (const auto& action :
         {QAccessibleActionInterface::pressAction(), QAccessibleActionInterface::toggleAction()}) {
        auto* const card = QAccessible::queryAccessibleInterface(find("verbCard"));
        const bool before = card->state().checked;
        card->actionInterface()->doAction(action);
        EXPECT_NE(static_cast<bool>(card->state().checked), before) << action.toStdString();
    }
    press(QAccessible::CheckBox, "Favourite");
    press(QAccessible::RadioButton, "Subjunctive");
    expectHeard("pressed", {"CheckBox: Favourite (checked)", "RadioButton: Subjunctive (checked)",
                            "Heading: Present subjunctive, not in use"});
    press(QAccessible::RadioButton, "Indicative");
    expectHeard("back again", {"ListItem: je vais"});
    press(QAccessible::Button, "Play je vais");
    ASSERT_TRUE(settled("stopSpeaking"));
    EXPECT_EQ(find("saySlowly"), nullptr) << "the control speaks, and opens nothing";
    press(QAccessible::ListItem, "je vais");
    settled("sheetDone");
    expectHeard("a form", {"Dialog: je vais", "Heading: je vais", "Button: Done"});
    press(QAccessible::Button, "Done");
    ASSERT_TRUE(until([&] { return find("sheetDone") == nullptr; }));
    press(QAccessible::Button, "Share");
    settled("share0");
    press(QAccessible::Button, "Copy text");
    expectHeard("copied", {"AlertMessage: Copied"});
    press(QAccessible::Button, "Back");
    click("aller", Qt::RightButton);
    settled("menuAction0");
    press(QAccessible::MenuItem, "Remove");
    expectHeard("no favourite", {"ListItem: aller, go"});
}

TEST_F(ScreenReaderTest, CallsTheListsByTheirTabs)
{
    start({390, 844});
    tap("tab2");
    expectHeard("history", {"List: History"});
    tap("tab1");
    expectHeard("favourites", {"List: Favourites"});
}

TEST_F(ScreenReaderTest, HearsOfBothPanesOfATablet)
{
    start({1024, 768});
    expectHeard("no verb", {"StaticText: Select a verb to see its conjugation.",
                            "StaticText: Or type a form: “irions” leads to aller."});
    tap("aller");
    expectHeard("verb",
                {"List: Verbs", "ListItem: aller, go (selected)", "Button: Verbs", "Heading: aller",
                 "CheckBox: Favourite", "RadioButton: Indicative (checked)", "Heading: Present",
                 "StaticText: je vais", "Button: Play je vais"});
    click("aller", Qt::RightButton);
    expectHeard("menu of a row", {"MenuItem: Open"});
}

} // namespace
} // namespace lumora::qt
