// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "qt/application.h"
#include "support/temporary_folder.h"
#include "support/world.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QtTest/QTest>

#include <fstream>
#include <memory>
#include <optional>
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
        std::ofstream{folder / "share" / "bundle.json"} << R"({"CFBundleShortVersionString": "1"})";
        ApplicationOptions options;
        options.folders = {folder / "data", folder / "config", folder / "state"};
        options.shareFolder = folder / "share";
        options.launchArguments = {"ui_test"};
        options.shortcut = std::move(shortcut);
        options.windowSize = size;
        application = std::make_unique<Application>(options);
        ASSERT_TRUE(application->show());
        application->launch();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(application->window()));
    }

    SplitScreen& split() const { return application->splitScreen(); }

    QQuickItem* find(const QString& name)
    {
        return visibleItem(application->window()->contentItem(), name);
    }

    static QQuickItem* visibleItem(QQuickItem* parent, const QString& name)
    {
        for (auto* child : parent->childItems()) {
            if (child->isVisible() && child->objectName() == name && child->width() > 0) {
                return child;
            }
            if (auto* found = child->isVisible() ? visibleItem(child, name) : nullptr) {
                return found;
            }
        }
        return nullptr;
    }

    /// Once it is there and rests: what slides in is not yet where it seems.
    void tap(const QString& name)
    {
        QPointF middle{-1, -1};
        const auto rests = [&] {
            const auto* item = find(name);
            const auto last = middle;
            middle = item == nullptr ? QPointF{-1, -1}
                                     : item->mapToScene({item->width() / 2, item->height() / 2});
            return item != nullptr && middle == last;
        };
        ASSERT_TRUE(QTest::qWaitFor(rests, kPatience)) << name.toStdString();
        QTest::mouseClick(application->window(), Qt::LeftButton, {}, middle.toPoint());
        // The slide of a page must not swallow the next tap.
        QTest::qWait(300);
    }
};

} // namespace lumora::qt
