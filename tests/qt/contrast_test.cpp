// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/text_conversion.h"
#include "qt/translations.h"
#include "window_fixture.h"

#include <QColor>
#include <QQmlComponent>
#include <QQmlEngine>

#include <algorithm>
#include <cmath>
#include <map>

namespace lumora::qt {
namespace {

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

/// Whether texts and icons stand out from what they are drawn on.
struct ContrastTest : WindowFixture, testing::WithParamInterface<bool> {
    Translations translations{{QStringLiteral("en")}};

    void expectReadable(const char* where)
    {
        SCOPED_TRACE(where);
        const auto picture = pictureAtRest();
        EXPECT_GE(checkBelow(*application->window()->contentItem(), picture), 3);
    }

    /// How many were drawn.
    int checkBelow(const QQuickItem& parent, const QImage& picture) const
    {
        int count = 0;
        for (const auto* item : parent.childItems()) {
            if (!item->isVisible() || item->opacity() < 1) {
                continue;
            }
            const bool isText = item->inherits("QQuickText") &&
                                !item->property("text").toString().trimmed().isEmpty();
            const bool isIcon = QByteArray{item->metaObject()->className()}.startsWith("Icon_") &&
                                !isPictureOfAProgram(*item);
            if ((isText || isIcon) && item->isEnabled()) {
                count += check(*item, isText ? kForText : kForShapes, picture);
            }
            count += checkBelow(*item, picture);
        }
        return count;
    }

    /// It has colours of its own.
    static bool isPictureOfAProgram(const QQuickItem& icon)
    {
        const auto name = icon.property("name").toString();
        return name.startsWith("AppIcon") || name == "AboutIcon";
    }

    /// Nothing is said of what is covered or clipped away.
    static bool check(const QQuickItem& item, double least, const QImage& picture)
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

    void swipe(const QString& row)
    {
        const auto middle = middleOf(*settled(row));
        drag(middle + QPoint{120, 0}, middle - QPoint{120, 0});
    }
};

TEST_P(ContrastTest, EveryTextAndIconStandsOut)
{
    start({390, 844});
    application->setAppearance({.dark = GetParam()});
    expectReadable("home");
    swipe("aller");
    expectReadable("swipe");
    tap("swipeAction0", "tab1");
    expectReadable("favourites");
    tap("tab0", "Search");
    type("qwx");
    expectReadable("nothing found");
    tap("searchClear", "aller");
    expectReadable("verb");
    tap("bar.export");
    expectReadable("ways out");
    tap("share1");
    expectReadable("saving");
    tap("fileCancel", "backButton", "tab2");
    swipe("aller");
    expectReadable("removal");
    tap("bar.menu");
    expectReadable("menu");
    tap("IconMoreApps");
    expectReadable("more programs");
    tap("bar.done", "bar.menu", "IconSettings");
    expectReadable("options");
    tap("bar.backup");
    expectReadable("question");
}

TEST_P(ContrastTest, RingsAndSwitchesStandOut)
{
    start({390, 844});
    application->setAppearance({.dark = GetParam()});
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
             {"accentSecondary", "header"},
             {"accentSecondary", "background"},
             {"switchOn", "raised"},
             {"switchOff", "raised"},
             {"segmentOn", "segment"},
             {"star", "background"},
             {"playBorder", "background"}}) {
        EXPECT_GE(contrast(color(shape), color(ground)), kForShapes)
            << shape << " on " << ground << ' ' << toUtf8(color(shape).name()) << ' '
            << toUtf8(color(ground).name());
    }
}

INSTANTIATE_TEST_SUITE_P(Themes, ContrastTest, testing::Bool(), [](const auto& dark) {
    return std::string{dark.param ? "dark" : "light"};
});

} // namespace
} // namespace lumora::qt
