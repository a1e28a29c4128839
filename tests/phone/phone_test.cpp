// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/base/text_conversion.h"
#include "qt/base/translations.h"
#include "qt/screens/home_screen.h"

#include "support/window_fixture.h"

#include <QScreen>

namespace lumora::qt {
namespace {

/// On the screen of a phone, which gives the window its size.
struct PhoneTest : WindowFixture {
    // The longest texts of all languages.
    Translations translations{{QStringLiteral("de")}};

    QSize screen() const { return QGuiApplication::primaryScreen()->size(); }

    /// The texts in sight that the window cuts off at a side.
    QStringList cutOff(QQuickItem& item) const
    {
        if (!item.isVisible() || item.clip()) {
            return {};
        }
        QStringList found;
        const auto text = item.property("text").toString();
        const auto place = item.mapRectToScene(item.boundingRect());
        if (item.inherits("QQuickText") && !text.isEmpty() && item.opacity() > 0 &&
            (place.left() < -1 || place.right() > screen().width() + 1)) {
            found.append(text);
        }
        for (auto* child : item.childItems()) {
            found += cutOff(*child);
        }
        return found;
    }

    /// Saves a picture of the screen, for a person to look at.
    void look(const char* name)
    {
        const auto picture = pictureAtRest();
        EXPECT_EQ(picture.size(), screen());
        EXPECT_EQ(cutOff(*application->window()->contentItem()).join(u'|').toStdString(), "");
        EXPECT_TRUE(picture.save(QStringLiteral(LUMORA_PICTURES "/%1x%2-%3.png")
                                     .arg(screen().width())
                                     .arg(screen().height())
                                     .arg(QLatin1String{name})));
    }
    bool showsVerb() const
    {
        const auto& pane = split().collapsed() ? split().primary() : split().secondary();
        return qobject_cast<Screen*>(pane.constLast())->title() == QStringLiteral("aller");
    }
};

TEST_F(PhoneTest, StartsFitsSearchesOpensAndGoesBack)
{
    ASSERT_NO_FATAL_FAILURE(open(std::nullopt));
    ASSERT_TRUE(until([this] { return application->isLaunched(); }));
    ASSERT_TRUE(until([this] { return application->window()->size() == screen(); }));
    ASSERT_TRUE(QTest::qWaitForWindowExposed(application->window()));
    look("list");

    tap("Search");
    type("vais");
    auto* home = qobject_cast<HomeScreen*>(split().primary().constFirst());
    ASSERT_TRUE(until([&] { return home->readings().size() == 1; }));
    look("search");
    keys("Return");
    ASSERT_TRUE(until([this] { return showsVerb(); }));
    look("verb");

    if (split().collapsed()) {
        tap("backButton");
        ASSERT_TRUE(until([this] { return split().primary().size() == 1; }));
    }
    tap("searchClear");
    EXPECT_NE(settled(QStringLiteral("aller")), nullptr) << "the list is back";
}

} // namespace
} // namespace lumora::qt
