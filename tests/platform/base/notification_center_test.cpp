// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/base/notification_center.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace lumora::platform {

TEST(NotificationCenter, DeliversAtOnceInTheOrderOfSubscriptionByName)
{
    NotificationCenter center;
    std::string calls;
    const auto first = center.addObserver("A", [&](const Notification& news) {
        calls += '1';
        EXPECT_EQ(std::get<bool>(news.object), true);
        EXPECT_EQ(std::any_cast<int>(news.userInfo.at("row")), 7);
    });
    const auto other = center.addObserver("B", [&](const Notification&) { calls += 'b'; });
    const auto second = center.addObserver("A", [&](const Notification&) { calls += '2'; });

    center.post({.name = "A", .object = true, .userInfo = {{"row", 7}}});
    center.post({.name = "nobody", .object = {}, .userInfo = {}});

    EXPECT_EQ(calls, "12");
}

TEST(NotificationCenter, OneRemovedDuringADeliveryIsNotCalledAnyMore)
{
    NotificationCenter center;
    std::string calls;
    std::optional<NotificationCenter::Subscription> self;
    std::optional<NotificationCenter::Subscription> later;
    self = center.addObserver("A", [&, text = std::string(40, '1')](const Notification&) {
        self.reset(); // the handler runs on after its own end
        later.reset();
        calls += text.front();
    });
    later = center.addObserver("A", [&](const Notification&) { calls += '2'; });
    const auto last = center.addObserver("A", [&](const Notification&) { calls += '3'; });

    center.post({.name = "A", .object = {}, .userInfo = {}});
    center.post({.name = "A", .object = {}, .userInfo = {}});

    EXPECT_EQ(calls, "133");
}

TEST(NotificationCenter, OneAddedDuringADeliveryWaitsForTheNext)
{
    NotificationCenter center;
    int calls = 0;
    std::vector<NotificationCenter::Subscription> added;
    const auto observer = center.addObserver("A", [&](const Notification&) {
        added.push_back(center.addObserver("A", [&](const Notification&) { ++calls; }));
    });

    center.post({.name = "A", .object = {}, .userInfo = {}});
    EXPECT_EQ(calls, 0);
    center.post({.name = "A", .object = {}, .userInfo = {}});
    EXPECT_EQ(calls, 1);
}

TEST(NotificationCenter, ASubscriptionMovesEndsAndOutlivesTheCentre)
{
    std::string calls;
    NotificationCenter::Subscription kept;
    {
        NotificationCenter center;
        auto first = center.addObserver("A", [&](const Notification&) { calls += '1'; });
        kept = std::move(first);
        center.post({.name = "A", .object = {}, .userInfo = {}});
        kept = center.addObserver("A", [&](const Notification&) { calls += '2'; });
        center.post({.name = "A", .object = {}, .userInfo = {}});
    }

    EXPECT_EQ(calls, "12");
}

} // namespace lumora::platform
