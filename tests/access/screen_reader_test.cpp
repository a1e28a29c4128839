// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "access/accessible_tree.h"
#include "qt/base/text_conversion.h"
#include "qt/base/translations.h"
#include "support/window_fixture.h"

#include <algorithm>
#include <set>
#include <sstream>

namespace lumora::qt {
namespace {

using support::Accessible;

std::string described(const Accessible& object)
{
    std::ostringstream text;
    text << toUtf8(object.role) << ": " << toUtf8(object.name);
    for (const auto& [state, name] :
         {std::pair{Accessible::Checked, " (checked)"}, {Accessible::Selected, " (selected)"}}) {
        if (object.is(state)) {
            text << name;
        }
    }
    return text.str();
}

/// What is on the screen, as a screen reader hears of it.
struct ScreenReaderTest : WindowFixture {
    Translations translations{{QStringLiteral("en")}};

    /// These are there, in this order, and nothing is without a name, of no
    /// known kind or there twice.
    void expectHeard(const char* where, const std::vector<std::string>& expected) const
    {
        SCOPED_TRACE(where);
        pictureAtRest();
        std::set<std::string> seen;
        std::string heard;
        auto next = expected.begin();
        for (const auto& object : support::accessibleTree()) {
            const auto text = described(object);
            heard += text + "\n";
            expectUsable(object);
            const auto& area = object.area;
            std::ostringstream place;
            place << text << area.x() << ' ' << area.y() << ' ' << area.width() << ' '
                  << area.height();
            EXPECT_TRUE(seen.insert(place.str()).second || !object.is(Accessible::Focusable))
                << text << " is there twice";
            next += next != expected.end() && *next == text;
        }
        EXPECT_EQ(next, expected.end())
            << (next == expected.end() ? "" : *next) << " is missing in\n"
            << heard;
    }

    static void expectUsable(const Accessible& object)
    {
        static const QStringList kGeneral{"filler", "panel", "unknown", "invalid", "layered pane"};
        static const QStringList kOperable{"push button", "check box", "radio button",
                                           "page tab",    "text",      "menu item"};
        static const QStringList kNamed{"list item", "heading", "list", "dialog", "label"};
        EXPECT_FALSE(object.is(Accessible::Focusable) && kGeneral.contains(object.role))
            << described(object) << " does not say what it is";
        EXPECT_FALSE((kOperable + kNamed).contains(object.role) && object.name.trimmed().isEmpty())
            << described(object) << " has no name";
        EXPECT_FALSE(object.role == "push button" && object.is(Accessible::Checked) &&
                     !object.is(Accessible::Checkable))
            << described(object);
        // A play control is as high as its row, and stands beside the form.
        const int least = object.name.startsWith("Play ") ? 30 : 44;
        EXPECT_FALSE(kOperable.contains(object.role) &&
                     std::min(object.area.width(), object.area.height()) < least)
            << described(object) << " is too small to touch";
    }
};

TEST_F(ScreenReaderTest, HearsOfEverythingOnAPhone)
{
    start({390, 844});
    expectHeard("home", {"push button: Menu", "heading: French verbs", "text: Search for a verb",
                         "list: Verbs", "heading: A", "list item: aller, go", "page tab list: ",
                         "page tab: Verbs (checked) (selected)", "page tab: History"});
    tap("tab1");
    expectHeard("no favourites", {"list: Favourites", "page tab: Favourites (checked) (selected)"});
    tap("Search");
    type("a");
    expectHeard("search", {"push button: Clear the search", "list item: aller, go"});
    tap("aller", "bar.favourite");
    expectHeard("verb", {"push button: Back", "heading: aller", "push button: Share",
                         "check box: Favourite (checked)", "radio button: Indicative (checked)",
                         "radio button: Other", "list: aller", "list item: go", "heading: Present",
                         "list item: je vais", "push button: Play je vais"});
    tap("bar.export");
    expectHeard("ways out", {"dialog: aller", "heading: aller", "push button: Copy text",
                             "push button: Cancel"});
    tap("share1");
    expectHeard("saving",
                {"dialog: aller", "text: File name", "push button: Cancel", "push button: Save"});
    tap("fileCancel", "backButton", "searchClear", "tab0");
    expectHeard("a favourite", {"list item: aller, go, Favourite", "list item: avoir, have"});
    tap("bar.menu");
    expectHeard("menu", {"popup menu: Lumora", "list: Lumora", "list item: Settings"});
    tap("IconMoreApps");
    expectHeard("more programs", {"heading: More apps", "push button: Done", "list: More apps",
                                  "list item: English Verbs"});
    tap("bar.done", "bar.menu", "IconSettings");
    expectHeard("options", {"heading: Settings", "list: Settings", "heading: Lumora",
                            "push button: https://www.brindle.example", "heading: Search",
                            "check box: Search translations (English) (checked)",
                            "list item: Search", "radio button: Start of word (checked)",
                            "check box: Search conjugated forms", "list item: Speech rate, 100%"});
    tap("bar.backup");
    expectHeard("a question", {"dialog: Lumora", "push button: Restore…", "push button: Cancel"});
}

TEST_F(ScreenReaderTest, HearsOfBothPanesOfATablet)
{
    start({1024, 768});
    tap("aller");
    expectHeard("verb",
                {"list: Verbs", "list item: aller, go", "push button: Verbs", "heading: aller",
                 "check box: Favourite", "radio button: Indicative (checked)", "heading: Present",
                 "label: je vais", "push button: Play je vais"});
    click("aller", Qt::RightButton);
    expectHeard("menu of a row", {"menu item: Open"});
}

} // namespace
} // namespace lumora::qt
