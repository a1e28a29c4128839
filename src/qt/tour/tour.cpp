// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/tour/tour.h"

#include "qt/base/text_conversion.h"
#include "qt/tour/window_driver.h"

#include <QGuiApplication>
#include <QImage>
#include <QQuickItem>
#include <QQuickWindow>
#include <QStyleHints>
#include <QTemporaryDir>

#include <iostream>
#include <string>
#include <system_error>
#include <utility>

namespace lumora::qt {

namespace {

/// More than the toolkit asks of a touch that is held.
constexpr int kHoldMilliseconds = 600;
constexpr QSize kPhone{390, 844};
constexpr QSize kTablet{1024, 768};

std::string nameOf(const Look& look)
{
    return std::string{look.window == kTablet ? "tablet" : "phone"} +
           (look.dark ? "-dark" : "-light") + (look.textScale > 1 ? "-large" : "");
}

class Guide {
public:
    Guide(QQuickWindow& window, const Look& look, std::filesystem::path folder)
        : window_{window},
          driver_{window},
          folder_{std::move(folder)},
          prefix_{nameOf(look) + "-"},
          tablet_{look.window == kTablet}
    {}

    bool failed() const { return failed_; }

    void goThroughScreens()
    {
        driver_.settle();
        if (tablet_) {
            picture("empty");
        }
        picture("list");
        tap("chipIrregular");
        picture("list-narrowed");
        tap("chipIrregular");
        press(Qt::Key_F1);
        picture("keys");
        press(Qt::Key_Escape);
        useSectionIndex();
        swipeOpen();
        preview();
        search();
        unusedTense();
        tap("aller");
        moods();
        reading();
        cardsAndSheets();
        share();
        if (!tablet_) {
            tap("backButton");
        }
        tabs();
        rowMenu();
        sideMenu();
    }

    /// Texts of twice their size have the least room here.
    void goThroughLongVerb()
    {
        driver_.settle();
        picture("list");
        find("désinstitutionnaliser");
        tap("désinstitutionnaliser");
        moods();
    }

private:
    void fail(const std::string& why)
    {
        std::cerr << "tour: " << why << '\n';
        failed_ = true;
    }

    void picture(const std::string& name)
    {
        const auto file = folder_ / (prefix_ + name + ".png");
        const QImage image = window_.grabWindow();
        if (image.isNull() || !image.save(toQString(file.string()))) {
            fail("could not write " + file.string());
            return;
        }
        std::cout << file.string() << std::endl;
    }

    QQuickItem* item(const char* name)
    {
        auto* found = driver_.find(QString::fromUtf8(name));
        if (found == nullptr) {
            fail(prefix_ + ": nothing on screen is called " + name);
        }
        return found;
    }

    /// The cell of that number from the top of the window.
    QQuickItem* cell(std::size_t number)
    {
        const auto all = driver_.cells();
        if (all.size() <= number) {
            fail(prefix_ + ": the list has no rows");
            return nullptr;
        }
        return all[number];
    }

    void click(const QQuickItem& target, Qt::MouseButton button = Qt::LeftButton) const
    {
        const auto middle = WindowDriver::middleOf(target);
        driver_.press(middle, button);
        QCoreApplication::processEvents();
        driver_.release(middle, button);
        driver_.settle();
    }

    void tap(const char* name)
    {
        if (const auto* target = item(name)) {
            click(*target);
        }
    }

    void press(Qt::Key key) const
    {
        driver_.pressKey(key);
        driver_.settle();
    }

    void useSectionIndex()
    {
        if (auto* index = item("sectionIndex")) {
            const auto at = [&](double part) {
                return index->mapToScene({index->width() / 2, index->height() * part});
            };
            driver_.press(at(0.2));
            driver_.move(at(0.45));
            driver_.settle();
            picture("index");
            driver_.move(at(0.01));
            driver_.release(at(0.01));
            driver_.settle();
        }
    }

    void swipeOpen()
    {
        if (const auto* row = cell(1)) {
            const auto right = row->mapToScene({row->width() * 0.75, row->height() / 2});
            const QPointF aside{row->width() * 0.06, 0};
            driver_.press(right);
            for (int step = 1; step <= 8; ++step) {
                driver_.move(right - step * aside);
                QCoreApplication::processEvents();
            }
            driver_.release(right - 8 * aside);
            driver_.settle();
            picture("swipe");
            tap("swipeAction0");
            picture("favourite");
        }
    }

    void preview()
    {
        if (const auto* row = cell(2)) {
            const auto middle = WindowDriver::middleOf(*row);
            driver_.press(middle);
            WindowDriver::wait(QGuiApplication::styleHints()->mousePressAndHoldInterval() +
                               kHoldMilliseconds);
            driver_.release(middle);
            picture("preview");
            press(Qt::Key_Escape);
        }
    }

    void share()
    {
        tap("bar.export");
        picture("share");
        tap("share1");
        picture("save");
        tap("fileCancel");
    }

    void search()
    {
        static constexpr std::pair<const char*, const char*> kTexts[] = {
            {"qwx", "search-nothing"},
            {"irions", "search-form"},
            {"acceuillir", "search-guess"},
            {"vis", "search-cards"}};
        for (const auto& [text, name] : kTexts) {
            find(text);
            picture(name);
        }
        tap("reading0");
        picture("detail-form");
        if (!tablet_) {
            tap("backButton");
        }
        find("all");
        picture("search");
    }

    void find(const char* text)
    {
        if (auto* field = item("Search")) {
            field->setProperty("text", QString::fromUtf8(text));
            driver_.settle();
        }
    }

    void moods()
    {
        static constexpr const char* kNames[] = {"indicative", "subjunctive", "conditional",
                                                 "other"};
        for (int mood = 0; mood < 4; ++mood) {
            tap(("mood" + std::to_string(mood)).c_str());
            picture(std::string{"detail-"} + kNames[mood]);
        }
        tap("mood0");
        if (tablet_) {
            tap("bar.displayMode");
            picture("detail-wide");
            tap("bar.displayMode");
        }
    }

    void unusedTense()
    {
        find("gésir");
        tap("gésir");
        picture("detail-unused");
        if (!tablet_) {
            tap("backButton");
        }
        find("all");
    }

    void reading()
    {
        tap("bar.more");
        picture("detail-menu");
        press(Qt::Key_Escape);
        tap("playTense0");
        picture("detail-reading");
        tap("stopSpeaking");
    }

    /// What a verb's page tells besides its tables.
    void cardsAndSheets()
    {
        if (!tablet_) {
            tap("verbCard");
            picture("detail-card");
            tap("verbCard");
        }
        if (const auto* form = tablet_ ? item("tense0") : cell(2)) {
            click(*form, Qt::RightButton);
            picture("form");
            tap("formTense");
            picture("tense");
            tap("sheetDone");
        }
    }

    void tabs()
    {
        tap("searchClear");
        static constexpr const char* kNames[] = {"list", "favourites", "history"};
        for (int tab = 1; tab <= 2; ++tab) {
            tap(("tab" + std::to_string(tab)).c_str());
            picture(std::string{"tab-"} + kNames[tab]);
        }
    }

    void rowMenu()
    {
        tap("tab0");
        if (const auto* row = cell(0)) {
            click(*row, Qt::RightButton);
            picture("row-menu");
            press(Qt::Key_Escape);
        }
    }

    void sideMenu()
    {
        tap("bar.menu");
        picture("menu");
        tap("IconMoreApps");
        picture("more-apps");
        tap("bar.done");
        tap("bar.menu");
        tap("IconSettings");
        picture("options");
        tap("bar.backup");
        picture("options-backup");
        press(Qt::Key_Escape);
        // To the row of the translation language, and to the last one.
        press(Qt::Key_End);
        picture("options-end");
        press(Qt::Key_Home);
        for (int row = 0; row < 5; ++row) {
            press(Qt::Key_Down);
        }
        press(Qt::Key_Return);
        picture("options-chooser");
        press(Qt::Key_Escape);
        tap("bar.done");
    }

    QQuickWindow& window_;
    WindowDriver driver_;
    std::filesystem::path folder_;
    std::string prefix_;
    bool tablet_;
    bool failed_ = false;
};

} // namespace

int runTour(const std::filesystem::path& folder, const StartProgram& start)
{
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    const QTemporaryDir world;
    if (!world.isValid()) {
        std::cerr << "tour: no temporary folder could be made\n";
        return 1;
    }
    const std::filesystem::path home{toUtf8(world.path())};
    bool failed = false;
    for (const Look& look : {Look{kPhone}, Look{kPhone, true}, Look{kTablet}, Look{kTablet, true},
                             Look{kPhone, false, 2}, Look{kTablet, false, 2}}) {
        const auto shown = start(look, home / nameOf(look));
        if (shown.window == nullptr) {
            std::cerr << "tour: the window could not be built\n";
            return 1;
        }
        Guide guide{*shown.window, look, folder};
        if (look.textScale > 1) {
            guide.goThroughLongVerb();
        } else {
            guide.goThroughScreens();
        }
        failed = failed || guide.failed();
    }
    return failed ? 1 : 0;
}

} // namespace lumora::qt
