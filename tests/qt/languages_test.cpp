// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/text_conversion.h"
#include "qt/translations.h"
#include "window_fixture.h"

#include <QJSValue>

namespace lumora::qt {
namespace {

/// The narrowest phone, and a tablet; high, so that all tenses are in sight.
constexpr QSize kPhone{360, 1600};
constexpr QSize kTablet{768, 2000};
/// A text that had to be made smaller than this is no longer read with ease.
constexpr int kSmallestPixels = 12;

/// The texts in sight, in one of the program's languages.
struct LanguagesTest : WindowFixture, testing::WithParamInterface<const char*> {
    Translations translations{{QString::fromLatin1(GetParam())}};

    void expectAllTextsFit(const char* where) const
    {
        SCOPED_TRACE(where);
        pictureAtRest();
        EXPECT_GT(expectTextsFit(*application->window()->contentItem()), 5);
    }

    /// How many there are.
    int expectTextsFit(const QQuickItem& parent) const
    {
        int count = 0;
        for (const auto* item : parent.childItems()) {
            if (!item->isVisible() || item->opacity() == 0) {
                continue;
            }
            if (item->inherits("QQuickText") &&
                !item->property("text").toString().trimmed().isEmpty()) {
                expectFits(*item);
                ++count;
            }
            count += expectTextsFit(*item);
        }
        return count;
    }

    void expectFits(const QQuickItem& text) const
    {
        SCOPED_TRACE(toUtf8(text.property("text").toString()));
        EXPECT_FALSE(text.property("truncated").toBool());
        EXPECT_LE(text.property("contentWidth").toReal(), text.width() + 0.5);
        EXPECT_LE(text.property("contentHeight").toReal(), text.height() + 0.5);
        const auto pixels = text.property("fontInfo").value<QJSValue>().property("pixelSize");
        EXPECT_GE(pixels.toInt(), kSmallestPixels);
        const auto& frame = frameOf(text);
        const auto place = text.mapRectToItem(&frame, text.boundingRect());
        EXPECT_GE(place.left(), 0);
        EXPECT_LE(place.right(), frame.width());
    }

    /// What a text must not grow out of: its button, or else the window.
    const QQuickItem& frameOf(const QQuickItem& text) const
    {
        const QQuickItem* frame = &text;
        while (frame->parentItem() != nullptr && !frame->inherits("QQuickAbstractButton")) {
            frame = frame->parentItem();
        }
        return *frame;
    }

    void lookAtTheTenses()
    {
        for (const char* mood : {"mood0", "mood1", "mood2", "mood3"}) {
            tap(mood);
            expectAllTextsFit(mood);
        }
    }
};

TEST_P(LanguagesTest, EveryTextHasRoom)
{
    start(kPhone);
    for (const char* tab : {"tab2", "tab1", "tab0"}) {
        tap(tab);
        expectAllTextsFit(tab);
    }
    tap("aller");
    lookAtTheTenses();
    tap("backButton");
    for (const char* screen : {"IconMoreApps", "IconSettings"}) {
        tap("bar.menu");
        expectAllTextsFit("menu");
        tap(screen);
        expectAllTextsFit(screen);
        if (find("bar.backup") != nullptr) {
            tap("bar.backup");
            expectAllTextsFit("backup");
            keys("Esc");
        }
        tap("bar.done");
    }
    tap("aller");
    turn(kTablet);
    lookAtTheTenses();
}

INSTANTIATE_TEST_SUITE_P(All, LanguagesTest,
                         testing::Values("de", "en", "es", "fr", "it", "nl", "pt"),
                         [](const auto& language) { return std::string{language.param}; });

} // namespace
} // namespace lumora::qt
