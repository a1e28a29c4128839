// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "qt/application.h"
#include "support/temporary_folder.h"
#include "support/world.h"

#include <QPointingDevice>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtTest/QTest>

#include <fstream>
#include <functional>
#include <memory>
#include <optional>
#include <ranges>
#include <string>

#include <gtest/gtest.h>

namespace lumora::qt {

/// The whole program with a window and a database of six verbs.
struct WindowFixture : testing::Test {
    static constexpr int kPatience = 3000;

    support::TemporaryFolder folder;
    std::unique_ptr<Application> application;

    void start(const QSize& size, std::optional<std::string> shortcut = std::nullopt)
    {
        std::filesystem::create_directories(folder / "share");
        support::writeSmallDatabase(folder / "share" / "verbs.db");
        std::ofstream{folder / "share" / "bundle.json"} << R"({"CFBundleShortVersionString": "1",
                "CFBundleIdentifier": "com.brindle.lumora"})";
        ApplicationOptions options;
        options.folders = {folder / "data", folder / "config", folder / "state"};
        options.shareFolder = folder / "share";
        options.launchArguments = {"ui_test"};
        options.shortcut = std::move(shortcut);
        options.windowSize = size;
        application = std::make_unique<Application>(options);
        ASSERT_TRUE(application->show());
        application->launch();
        application->window()->requestActivate();
        ASSERT_TRUE(QTest::qWaitForWindowActive(application->window()));
    }

    SplitScreen& split() const { return application->splitScreen(); }

    QQuickItem* find(const QString& name)
    {
        return visibleItem(application->window()->contentItem(), name);
    }

    /// The topmost one.
    static QQuickItem* visibleItem(QQuickItem* parent, const QString& name)
    {
        const auto children = parent->childItems();
        for (auto* child : std::views::reverse(children)) {
            if (child->isVisible() && child->objectName() == name && child->width() > 0) {
                return child;
            }
            if (auto* found = child->isVisible() ? visibleItem(child, name) : nullptr) {
                return found;
            }
        }
        return nullptr;
    }

    /// Lets the program run until that is so.
    static bool until(const std::function<bool()>& condition)
    {
        return QTest::qWaitFor(condition, kPatience);
    }

    /// Waits until the item is there, can be used and has stopped moving.
    QQuickItem* settled(const QString& name)
    {
        QQuickItem* item = nullptr;
        QPointF place;
        int still = 0;
        const bool found = until([&] {
            auto* const now = find(name);
            const bool moved = now == nullptr || now != item || middleOf(*now) != place;
            item = now;
            place = item == nullptr ? QPointF{} : middleOf(*item);
            still = moved || !item->isEnabled() ? 0 : still + 1;
            return still > 3;
        });
        EXPECT_TRUE(found) << name.toStdString();
        return found ? item : nullptr;
    }

    static QPointF middleOf(const QQuickItem& item)
    {
        return item.mapToScene({item.width() / 2, item.height() / 2});
    }

    void tap(const QString& name, Qt::MouseButton button = Qt::LeftButton)
    {
        if (const auto* item = settled(name)) {
            QTest::mouseClick(application->window(), button, {}, middleOf(*item).toPoint());
        }
    }

    /// The finger's tap.
    void touch(const QString& name)
    {
        if (const auto* item = settled(name)) {
            const auto point = middleOf(*item).toPoint();
            QTest::touchEvent(application->window(), finger()).press(0, point);
            QTest::touchEvent(application->window(), finger()).release(0, point);
        }
    }

    void drag(const QPoint& from, const QPoint& to)
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

    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(application->window(), key, modifiers);
    }

    void type(const char* text)
    {
        for (; *text != 0; ++text) {
            QTest::keyClick(application->window(), *text);
        }
    }

private:
    static QPointingDevice* finger()
    {
        static auto* const device = QTest::createTouchDevice();
        return device;
    }
};

} // namespace lumora::qt
