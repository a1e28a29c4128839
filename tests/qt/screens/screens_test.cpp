// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/base/text_conversion.h"
#include "qt/base/translations.h"
#include "support/window_fixture.h"

#include <QColor>
#include <QJSValue>
#include <QQmlComponent>
#include <QQmlEngine>

#include <algorithm>
#include <cmath>
#include <map>

namespace lumora::qt {
namespace {

/// The narrowest phone, and a tablet; high, so that all tenses are in sight.
constexpr QSize kPhone{360, 1600};
constexpr QSize kTablet{768, 2000};
/// A text that had to be made smaller than this is no longer read with ease.
constexpr int kSmallestPixels = 12;
constexpr double kForText = 4.5;
constexpr double kForShapes = 3;

double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

/// From 1 to 21, as accessibility guidelines count it.
double contrast(const QColor& one, const QColor& other)
{
    const double first = luminance(one) + 0.05;
    const double second = luminance(other) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

/// Every screen: whether its texts have room, and they and the icons stand out
/// from what they are drawn on.
struct ScreensTest : WindowFixture, testing::WithParamInterface<const char*> {
    const QString look = QString::fromLatin1(GetParam());
    Translations translations{{look.left(2)}};
    /// And cut off on purpose.
    bool rowIsAside = false;

    void lookAt(const char* where) const
    {
        SCOPED_TRACE(where);
        const auto picture = pictureAtRest();
        EXPECT_GE(lookBelow(*application->window()->contentItem(), picture, true), 3);
    }

    /// Only at what lies over the shaded window.
    void lookAtSheet(const char* where) const
    {
        SCOPED_TRACE(where);
        const auto picture = pictureAtRest();
        const auto* sheet = find("sheetDone");
        while (sheet != nullptr && sheet->parentItem() != nullptr &&
               !sheet->parentItem()->inherits("QQuickOverlay")) {
            sheet = sheet->parentItem();
        }
        ASSERT_NE(sheet, nullptr);
        EXPECT_GE(lookBelow(*sheet, picture, true), 3);
    }

    /// How many texts and icons were seen whole.
    int lookBelow(const QQuickItem& parent, const QImage& picture, bool opaque) const
    {
        int count = 0;
        for (const auto* item : parent.childItems()) {
            if (!item->isVisible() || item->opacity() == 0) {
                continue;
            }
            const bool isOpaque = opaque && item->opacity() == 1;
            const bool isText = item->inherits("QQuickText") &&
                                !item->property("text").toString().trimmed().isEmpty();
            const bool isIcon = QByteArray{item->metaObject()->className()}.startsWith("Icon_") &&
                                !isPictureOfAProgram(*item);
            if (isText && !rowIsAside) {
                expectFits(*item);
            }
            if ((isText || isIcon) && isOpaque && item->isEnabled()) {
                count += standsOut(*item, isText ? kForText : kForShapes, picture);
            }
            count += lookBelow(*item, picture, isOpaque);
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

    /// It has colours of its own.
    static bool isPictureOfAProgram(const QQuickItem& icon)
    {
        const auto name = icon.property("name").toString();
        return name.startsWith("AppIcon") || name == "AboutIcon";
    }

    /// Nothing is said of what is covered or clipped away.
    static bool standsOut(const QQuickItem& item, double least, const QImage& picture)
    {
        const auto color = item.property("color").value<QColor>();
        const auto place =
            item.mapRectToScene(item.boundingRect()).toAlignedRect() & picture.rect();
        std::map<QRgb, int> pixels;
        bool drawn = false;
        for (int y = place.top(); y <= place.bottom(); ++y) {
            for (int x = place.left(); x <= place.right(); ++x) {
                const auto pixel = picture.pixel(x, y);
                ++pixels[pixel];
                drawn = drawn || isNear(pixel, color);
            }
        }
        if (!drawn || color.alpha() < 255) {
            return false;
        }
        const auto ground =
            std::max_element(pixels.begin(), pixels.end(), [](const auto& one, const auto& other) {
                return one.second < other.second;
            });
        EXPECT_GE(contrast(color, QColor{ground->first}), least)
            << toUtf8(item.property("text").toString() + item.property("name").toString()) << ' '
            << toUtf8(color.name()) << " on " << toUtf8(QColor{ground->first}.name());
        return true;
    }

    static bool isNear(QRgb pixel, const QColor& color)
    {
        constexpr int kTolerance = 12;
        return std::abs(qRed(pixel) - color.red()) < kTolerance &&
               std::abs(qGreen(pixel) - color.green()) < kTolerance &&
               std::abs(qBlue(pixel) - color.blue()) < kTolerance;
    }

    void lookAtTheTenses() const
    {
        for (const char* mood : {"mood0", "mood1", "mood2", "mood3"}) {
            tap(mood);
            lookAt(mood);
        }
    }

    /// The card open, a form's sheet, and what its tense is for.
    void lookAtWhatIsTold() const
    {
        tap("mood0");
        if (find("verbLink.être") == nullptr) {
            tap("verbCard");
        }
        lookAt("card");
        keys("Ctrl+PgDown");
        keys("Ctrl+PgUp");
        settled("verbLink.être");
        if (split().collapsed()) {
            find("list")->parentItem()->forceActiveFocus(Qt::TabFocusReason);
            keys("Home, Down, Return");
        } else {
            find("play")->forceActiveFocus(Qt::TabFocusReason);
            keys("Menu");
        }
        settled("saySlowly");
        lookAtSheet("sheet of a form");
        tap("formTense");
        lookAtSheet("note on a tense");
        tap("sheetDone");
    }

    void swipe(const QString& row) const
    {
        const auto middle = middleOf(*settled(row));
        drag(middle + QPoint{120, 0}, middle - QPoint{120, 0});
    }
};

TEST_P(ScreensTest, EveryTextHasRoomAndStandsOutAsIconsDo)
{
    start(kPhone);
    application->appearance().setDesktop({.dark = look.endsWith("dark")});
    lookAt("home");
    tap("tab2");
    lookAt("no history");
    tap("tab1");
    lookAt("no favourites");
    tap("tab0", "Search");
    type("qwx");
    lookAt("nothing found");
    tap("searchClear", "aller");
    lookAtTheTenses();
    lookAtWhatIsTold();
    tap("bar.export");
    lookAt("ways out");
    tap("share1");
    lookAt("saving");
    tap("fileCancel", "backButton", "bar.menu");
    lookAt("menu");
    tap("IconMoreApps");
    lookAt("more programs");
    tap("bar.done", "bar.menu", "IconSettings");
    lookAt("options");
    tap("bar.backup");
    lookAt("question");
    keys("Esc");
    tap("bar.done", "aller");
    turn(kTablet);
    lookAtTheTenses();
    lookAtWhatIsTold();

    turn(kPhone);
    tap("backButton");
    rowIsAside = true;
    swipe("aller");
    lookAt("swipe");
    tap("swipeAction0", "tab1");
    lookAt("favourites");
    tap("tab2");
    swipe("aller");
    lookAt("removal");
}

struct Shapes : WindowFixture, testing::WithParamInterface<bool> {};

TEST_P(Shapes, RingsAndSwitchesStandOut)
{
    start(kPhone);
    application->appearance().setDesktop({.dark = GetParam()});
    QQmlComponent asking{qmlEngine(application->window())};
    asking.setData("import QtQml\nimport Lumora\nQtObject { property QtObject theme: Theme }",
                   QUrl{"qrc:/Lumora/asking.qml"});
    const std::unique_ptr<QObject> asked{asking.create()};
    ASSERT_NE(asked, nullptr) << toUtf8(asking.errorString());
    const auto* theme = asked->property("theme").value<QObject*>();
    const auto color = [&](const char* name) { return theme->property(name).value<QColor>(); };
    for (const auto& [shape, ground] : std::initializer_list<std::pair<const char*, const char*>>{
             {"accentText", "background"},
             {"accentText", "raised"},
             {"accentText", "grouped"},
             {"accentText", "segment"},
             {"navigationBarTint", "barBackground"},
             {"barText", "menu"},
             {"accentSecondaryEdge", "header"},
             {"accentSecondaryEdge", "segment"},
             {"switchOn", "raised"},
             {"switchOff", "raised"},
             {"segmentOn", "segment"},
             {"star", "background"},
             {"playBorder", "background"}}) {
        EXPECT_GE(contrast(color(shape), color(ground)), kForShapes)
            << shape << " on " << ground << ' ' << toUtf8(color(shape).name()) << ' '
            << toUtf8(color(ground).name());
    }
    // Endings, the light words of a form and what stands before it, also in the
    // row that is being read.
    for (const char* ink : {"accentText", "textSecondary", "text"}) {
        for (const char* ground : {"background", "raised", "header", "pressed"}) {
            EXPECT_GE(contrast(color(ink), color(ground)), kForText) << ink << " on " << ground;
        }
    }
    EXPECT_GE(contrast(color("accentSecondaryInk"), color("accentSecondary")), kForText);
}

INSTANTIATE_TEST_SUITE_P(Themes, Shapes, testing::Bool());
INSTANTIATE_TEST_SUITE_P(Looks, ScreensTest,
                         testing::Values("en_dark", "de", "en", "es", "fr", "it", "nl", "pt"),
                         [](const auto& test) { return std::string{test.param}; });

} // namespace
} // namespace lumora::qt
