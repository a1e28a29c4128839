// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/app_delegate.h"
#include "app/database_preparation.h"
#include "navigation/home_view_controller.h"
#include "platform/screens/navigation_controller.h"

#include "support/world.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lumora::app {

/// A machine on which the program is about to start, again and again.
class StartUp : public testing::Test {
protected:
    void SetUp() override
    {
        std::filesystem::create_directory(documents);
        support::writeSmallDatabase(resource);
        world.bundle.resources["verbs.db"] = resource;
        world.bundle.info["CFBundleShortVersionString"] = "2.0";
    }

    platform::Result<void> prepare()
    {
        return prepareDatabase(documents, world.bundle, world.settings, world.crashReporter);
    }

    /// The working database as another version left it.
    void installOld(const std::string& favourites, const std::string& history,
                    const std::string& version = "1.0")
    {
        support::writeSmallDatabase(database);
        const auto queue = open();
        if (!favourites.empty()) {
            support::executeOn(*queue, "INSERT INTO favourite(verbid) VALUES " + favourites);
        }
        if (!history.empty()) {
            support::executeOn(*queue, "INSERT INTO history(verbid, timestamp) VALUES " + history);
        }
        support::executeOn(*queue, "CREATE TABLE old(x)");
        world.settings.setValue(version, "installed_version");
    }

    std::unique_ptr<platform::DatabaseQueue> open() const
    {
        return platform::DatabaseQueue::open(platform::fileUrl(database));
    }

    /// "favourites | history" of the working database, in row order.
    std::string userRows() const
    {
        std::string text;
        for (const auto& verb : support::rowsOf(*open(), "SELECT verbid FROM favourite")) {
            text += verb + " ";
        }
        text += "|";
        for (const auto& view :
             support::rowsOf(*open(), "SELECT verbid || '@' || timestamp FROM history")) {
            text += " " + view;
        }
        return text;
    }

    bool isFresh() const
    {
        return support::rowsOf(*open(), "SELECT name FROM sqlite_master WHERE name = 'old'")
            .empty();
    }

    AppDelegate makeDelegate()
    {
        AppDelegate delegate{world.services(), {documents, documents.string()}, {0, 0, 1, 1}};
        delegate.window.rootViewController = world.storyboard.instantiateInitialViewController();
        return delegate;
    }
    static platform::SplitViewController& splitOf(const AppDelegate& delegate)
    {
        return dynamic_cast<platform::SplitViewController&>(*delegate.window.rootViewController);
    }
    static platform::NavigationController& stackOf(const AppDelegate& delegate)
    {
        return dynamic_cast<platform::NavigationController&>(
            *splitOf(delegate).viewControllers().front());
    }
    static navigation::HomeViewController& homeOf(const AppDelegate& delegate)
    {
        return dynamic_cast<navigation::HomeViewController&>(
            *stackOf(delegate).topViewController());
    }

    support::World world;
    std::filesystem::path documents = world.folder / "documents";
    std::filesystem::path database = documents / "verbs.db";
    std::filesystem::path rescue = documents / "rescue.json";
    std::filesystem::path resource = world.folder / "resource.db";
};

} // namespace lumora::app
