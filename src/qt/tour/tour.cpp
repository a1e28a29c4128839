// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/tour/tour.h"

#include "qt/app/application.h"
#include "qt/base/text_conversion.h"

#include <QDateTime>
#include <QEventLoop>
#include <QGuiApplication>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QStyleHints>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <iostream>
#include <ranges>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace lumora::qt {

namespace {

/// Long enough for every animation of ours.
constexpr int kSettleMilliseconds = 600;
/// Without a new frame: nothing moves any more.
constexpr int kStillMilliseconds = 200;
constexpr QSize kPhone{390, 844};
constexpr QSize kTablet{1024, 768};
/// Below the bar and the search field, above the tabs.
constexpr double kRowsBegin = 60;

class Guide {
public:
    Guide(Application& application, std::filesystem::path folder)
        : application_{application}, folder_{std::move(folder)}
    {}

    bool failed() const { return failed_; }

    void begin(const QSize& size, bool dark)
    {
        tablet_ = size == kTablet;
        prefix_ = std::string{tablet_ ? "tablet" : "phone"} + (dark ? "-dark-" : "-light-");
        application_.setAppearance({.dark = dark});
        application_.window()->resize(size);
        settle();
    }

    void goThroughScreens()
    {
        if (tablet_) {
            picture("empty");
        }
        picture("list");
        useSectionIndex();
        swipeOpen();
        preview();
        search();
        openVerb();
        moods();
        share();
        while (application_.splitScreen().back()) {
            settle();
        }
        tabs();
        rowMenu();
        sideMenu();
    }

private:
    static void wait(int milliseconds)
    {
        QEventLoop loop;
        QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
        loop.exec();
    }

    /// Until nothing moves any more.
    void settle() const
    {
        QEventLoop loop;
        QTimer stillness;
        stillness.setSingleShot(true);
        stillness.setInterval(kStillMilliseconds);
        QObject::connect(application_.window(), &QQuickWindow::frameSwapped, &stillness,
                         qOverload<>(&QTimer::start));
        QObject::connect(&stillness, &QTimer::timeout, &loop, &QEventLoop::quit);
        QTimer::singleShot(kSettleMilliseconds, &loop, &QEventLoop::quit);
        stillness.start();
        loop.exec();
    }

    void fail(const std::string& why)
    {
        std::cerr << "tour: " << why << '\n';
        failed_ = true;
    }

    void picture(const std::string& name)
    {
        const auto file = folder_ / (prefix_ + name + ".png");
        const QImage image = application_.window()->grabWindow();
        if (image.isNull() || !image.save(toQString(file.string()))) {
            fail("could not write " + file.string());
            return;
        }
        std::cout << file.string() << std::endl;
    }

    /// The visible item of that name, the topmost one.
    static QQuickItem* visibleItem(QQuickItem* parent, const QString& name)
    {
        const auto children = parent->childItems();
        for (auto* child : std::views::reverse(children)) {
            if (!child->isVisible()) {
                continue;
            }
            if (child->objectName() == name && child->width() > 0) {
                return child;
            }
            if (auto* found = visibleItem(child, name)) {
                return found;
            }
        }
        return nullptr;
    }

    QQuickItem* item(const char* name)
    {
        auto* found = visibleItem(application_.window()->contentItem(), QString::fromUtf8(name));
        if (found == nullptr) {
            fail(prefix_ + ": nothing on screen is called " + name);
        }
        return found;
    }

    void mouse(QEvent::Type type, const QPointF& point,
               Qt::MouseButton button = Qt::LeftButton) const
    {
        const bool up = type == QEvent::MouseButtonRelease;
        QMouseEvent event{type,
                          point,
                          application_.window()->mapToGlobal(point),
                          type == QEvent::MouseMove ? Qt::NoButton : button,
                          up ? Qt::NoButton : button,
                          Qt::NoModifier};
        // Without the time a press looks like a fast move.
        event.setTimestamp(static_cast<quint64>(QDateTime::currentMSecsSinceEpoch()));
        QCoreApplication::sendEvent(application_.window(), &event);
        QCoreApplication::processEvents();
    }

    void tap(const char* name)
    {
        if (auto* target = item(name)) {
            const auto middle = target->mapToScene({target->width() / 2, target->height() / 2});
            mouse(QEvent::MouseButtonPress, middle);
            mouse(QEvent::MouseButtonRelease, middle);
            settle();
        }
    }

    void useSectionIndex()
    {
        if (auto* index = item("sectionIndex")) {
            const auto at = [&](double part) {
                return index->mapToScene({index->width() / 2, index->height() * part});
            };
            mouse(QEvent::MouseButtonPress, at(0.2));
            mouse(QEvent::MouseMove, at(0.45));
            settle();
            picture("index");
            mouse(QEvent::MouseMove, at(0.01));
            mouse(QEvent::MouseButtonRelease, at(0.01));
            settle();
        }
    }

    /// The cells of a table that are wholly inside the window, from the top.
    std::vector<QQuickItem*> rows()
    {
        std::vector<QQuickItem*> found;
        collectRows(application_.window()->contentItem(), found);
        std::sort(found.begin(), found.end(), [](QQuickItem* left, QQuickItem* right) {
            return left->mapToScene({}).y() < right->mapToScene({}).y();
        });
        return found;
    }

    void collectRows(QQuickItem* parent, std::vector<QQuickItem*>& found) const
    {
        for (auto* child : parent->childItems()) {
            if (!child->isVisible()) {
                continue;
            }
            if (!child->property("isCell").toBool()) {
                collectRows(child, found);
                continue;
            }
            const auto top = child->mapToScene({}).y();
            if (top > kRowsBegin &&
                top + child->height() < application_.window()->height() - kRowsBegin) {
                found.push_back(child);
            }
        }
    }

    void swipeOpen()
    {
        const auto all = rows();
        if (all.size() < 2) {
            fail(prefix_ + ": the list has no rows");
            return;
        }
        auto* row = all[1];
        const auto right = row->mapToScene({row->width() * 0.75, row->height() / 2});
        mouse(QEvent::MouseButtonPress, right);
        for (int step = 1; step <= 8; ++step) {
            mouse(QEvent::MouseMove, right - QPointF{step * row->width() * 0.06, 0});
        }
        mouse(QEvent::MouseButtonRelease, right - QPointF{row->width() * 0.5, 0});
        settle();
        picture("swipe");
        tap("swipeAction0");
        picture("favourite");
    }

    void preview()
    {
        const auto all = rows();
        if (all.size() < 3) {
            fail(prefix_ + ": the list has no rows");
            return;
        }
        const auto middle = all[2]->mapToScene({all[2]->width() / 2, all[2]->height() / 2});
        mouse(QEvent::MouseButtonPress, middle);
        wait(QGuiApplication::styleHints()->mousePressAndHoldInterval() + kSettleMilliseconds);
        mouse(QEvent::MouseButtonRelease, middle);
        picture("preview");
        application_.presenter().preview()->close();
        settle();
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
        if (auto* field = item("Search")) {
            field->setProperty("text", QStringLiteral("qwx"));
            settle();
            picture("search-nothing");
            field->setProperty("text", QStringLiteral("all"));
            settle();
            picture("search");
        }
    }

    void openVerb() { tap("aller"); }

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
        if (const auto all = rows(); !all.empty()) {
            const auto middle = all[0]->mapToScene({all[0]->width() / 2, all[0]->height() / 2});
            mouse(QEvent::MouseButtonPress, middle, Qt::RightButton);
            mouse(QEvent::MouseButtonRelease, middle, Qt::RightButton);
            settle();
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

    void press(Qt::Key key)
    {
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event{type, key, Qt::NoModifier};
            QCoreApplication::sendEvent(application_.window(), &event);
        }
        settle();
    }

    Application& application_;
    std::filesystem::path folder_;
    std::string prefix_;
    bool tablet_ = false;
    bool failed_ = false;
};

} // namespace

int runTour(const std::filesystem::path& folder, const std::filesystem::path& shareFolder)
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
    for (const auto& size : {kPhone, kTablet}) {
        for (const bool dark : {false, true}) {
            const auto own = home / (std::to_string(size.width()) + (dark ? "-dark" : "-light"));
            ApplicationOptions options;
            options.folders = {own / "data", own / "config", own / "state"};
            options.shareFolder = shareFolder;
            options.launchArguments = {"ui_test"};
            options.windowSize = size;
            Application application{options};
            if (!application.show()) {
                std::cerr << "tour: the window could not be built\n";
                return 1;
            }
            application.launch();
            Guide guide{application, folder};
            guide.begin(size, dark);
            guide.goThroughScreens();
            failed = failed || guide.failed();
        }
    }
    return failed ? 1 : 0;
}

} // namespace lumora::qt
