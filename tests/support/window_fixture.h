// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "qt/app/application.h"
#include "qt/tour/window_driver.h"
#include "support/shipped_templates.h"
#include "support/temporary_folder.h"
#include "support/world.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QImage>
#include <QKeySequence>
#include <QPointingDevice>
#include <QQuickItem>
#include <QQuickWindow>
#include <QStyleHints>
#include <QtTest/QTest>

#include <functional>
#include <memory>
#include <utility>

#include <gtest/gtest.h>

namespace lumora::qt {

/// The whole program with a window and a database of six verbs.
struct WindowFixture : testing::Test {
    static constexpr int kPatience = 10000;

    support::TemporaryFolder folder;
    ApplicationOptions options;
    std::unique_ptr<Application> application;

    /// A window of that size that is not launched yet.
    void open(std::optional<QSize> size)
    {
        const auto share = folder / "share";
        std::filesystem::remove_all(share);
        std::filesystem::create_directories(share);
        support::writeSmallDatabase(share / "verbs.db");
        tellOfAVerb(share / "verbs.db");
        support::copyTemplates(LUMORA_SHARE_DIR, share);
        support::writeContent(share / "bundle.json", R"({"CFBundleShortVersionString": "1",
                "CFBundleIdentifier": "com.brindle.lumora"})");
        options.folders = {folder / "data", folder / "config", folder / "state"};
        options.shareFolder = share;
        options.launchArguments = {"ui_test"};
        options.windowSize = size;
        application = std::make_unique<Application>(options);
        // A blinking cursor is never at rest.
        QGuiApplication::styleHints()->setCursorFlashTime(0);
        ASSERT_TRUE(application->show());
    }

    void start(const QSize& size)
    {
        ASSERT_NO_FATAL_FAILURE(open(size));
        application->launch();
        application->window()->requestActivate();
        ASSERT_TRUE(QTest::qWaitForWindowActive(application->window()));
    }

    SplitScreen& split() const { return application->splitScreen(); }

    /// Changes the size of the window, and with it the panes.
    void turn(const QSize& size) const
    {
        application->window()->resize(size);
        ASSERT_TRUE(until([&] { return split().collapsed() == (size.width() < 700); }));
    }

    /// The topmost visible item of that name.
    QQuickItem* find(const QString& name) const
    {
        return WindowDriver{*application->window()}.find(name);
    }

    /// Lets the program run until that is so.
    static bool until(const std::function<bool()>& condition)
    {
        return QTest::qWaitFor(condition, kPatience);
    }

    /// Waits until the picture stays as it is.
    QImage pictureAtRest() const
    {
        constexpr int kRest = 250;
        QImage picture;
        QElapsedTimer rest;
        EXPECT_TRUE(until([&] {
            const QImage last = std::exchange(picture, application->window()->grabWindow());
            if (picture != last) {
                rest.start();
            }
            return rest.hasExpired(kRest);
        }));
        return picture;
    }

    /// Waits until the item is there, can be used and has stopped moving.
    QQuickItem* settled(const QString& name) const
    {
        QQuickItem* item = nullptr;
        QPointF place;
        int still = 0;
        const bool found = until([&] {
            auto* const now = find(name);
            const bool moved =
                now == nullptr || now != item || WindowDriver::middleOf(*now) != place;
            item = now;
            place = item == nullptr ? QPointF{} : WindowDriver::middleOf(*item);
            still = moved || !item->isEnabled() ? 0 : still + 1;
            return still > 3;
        });
        EXPECT_TRUE(found) << name.toStdString();
        return found ? item : nullptr;
    }

    static QPoint middleOf(const QQuickItem& item)
    {
        return WindowDriver::middleOf(item).toPoint();
    }

    void click(const QString& name, Qt::MouseButton button = Qt::LeftButton) const
    {
        if (const auto* item = settled(name)) {
            QTest::mouseClick(application->window(), button, {}, middleOf(*item));
        }
    }

    /// Clicks one after the other, each as soon as that can be done.
    void tap(const auto&... names) const { (click(names), ...); }

    /// As a finger does.
    void touch(const auto&... names) const { (touchOne(names), ...); }

    void drag(const QPoint& from, const QPoint& to) const
    {
        constexpr int kSteps = 10;
        QTest::touchEvent(application->window(), finger()).press(0, from);
        for (int step = 1; step <= kSteps; ++step) {
            QTest::touchEvent(application->window(), finger())
                .move(0, from + (to - from) * step / kSteps);
            QTest::qWait(5);
        }
        QTest::touchEvent(application->window(), finger()).release(0, to);
    }

    /// "Ctrl+F, Down": up to four.
    void keys(const char* sequence) const
    {
        QTest::keySequence(application->window(), QKeySequence{QString::fromLatin1(sequence)});
    }

    void type(const char* text) const
    {
        for (; *text != 0; ++text) {
            QTest::keyClick(application->window(), *text);
        }
    }

private:
    /// What the card of aller shows, and a form that it has twice.
    static void tellOfAVerb(const std::filesystem::path& file)
    {
        const auto queue = platform::DatabaseQueue::open(platform::fileUrl(file));
        for (const char* statement : {
                 "INSERT INTO verb_facts VALUES(3, 3, 'aller', 2, 'être', 'pronominal', '', 1, 1)",
                 "INSERT INTO conjugation(verbid, pronoun, verb, type, conj_order, display) VALUES"
                 "(3, 'il/elle/on', 'va', 'indicatifPresent', 4, 1),"
                 "(3, '', 'aller', 'infinitif', 5, 1), (3, '', 'être allé(e)(s)', 'infinitif', 6, "
                 "1)",
             }) {
            support::executeOn(*queue, statement);
        }
    }

    void touchOne(const QString& name) const
    {
        if (const auto* item = settled(name)) {
            const auto point = middleOf(*item);
            QTest::touchEvent(application->window(), finger()).press(0, point);
            QTest::touchEvent(application->window(), finger()).release(0, point);
        }
    }

    static QPointingDevice* finger()
    {
        static auto* const device = QTest::createTouchDevice();
        return device;
    }
};

} // namespace lumora::qt
