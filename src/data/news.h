// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/verb.h"
#include "platform/base/notification_center.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// The notifications of the program: a struct for each, with its name and its
/// payload. The keys of the payloads are known only here.
///
/// from() takes a notification of that name and never fails: what is missing
/// or of a wrong type stays at the struct's default.
namespace lumora::data {

/// A verb became a favourite, or stopped being one.
struct VerbFavouriteToggled {
    static constexpr std::string_view kName = "VerbFavouriteToggled";

    /// The screen that changed it. Not owned.
    const platform::ViewController* sender = nullptr;
    /// The verb with its new mark. Null when a backup marked many at once.
    VerbPtr verb;
    /// The ids that a backup marked.
    std::vector<std::int64_t> added;

    platform::Notification notification() const;
    static VerbFavouriteToggled from(const platform::Notification& notification);
};

/// A verb was shown, and recorded where the history is on.
struct VerbViewed {
    static constexpr std::string_view kName = "VerbViewed";

    VerbPtr verb;

    platform::Notification notification() const;
    static VerbViewed from(const platform::Notification& notification);
};

/// The history changed as a whole.
struct RefreshHistory {
    static constexpr std::string_view kName = "RefreshHistory";

    platform::Notification notification() const;
    static RefreshHistory from(const platform::Notification& /*notification*/) { return {}; }
};

/// A setting changed that shows in the forms of a verb.
struct RefreshConjugations {
    static constexpr std::string_view kName = "RefreshConjugations";

    platform::Notification notification() const;
    static RefreshConjugations from(const platform::Notification& /*notification*/) { return {}; }
};

/// The history was switched on or off.
struct HistoryFeatureToggled {
    static constexpr std::string_view kName = "HistoryFeatureToggled";

    bool on = true;

    platform::Notification notification() const;
    static HistoryFeatureToggled from(const platform::Notification& notification);
};

/// A tab of the home screen is asked for from outside.
struct TabOpenEvent {
    static constexpr std::string_view kName = "TabOpenEvent";
    static constexpr std::string_view kFavourites = "Favourites";
    static constexpr std::string_view kHistory = "History";
    static constexpr std::string_view kList = "List";

    /// One of the names above; anything else means the list.
    std::string selectedTab;

    platform::Notification notification() const;
    static TabOpenEvent from(const platform::Notification& notification);
};

template <typename News>
void post(platform::NotificationCenter& center, const News& news)
{
    center.post(news.notification());
}

/// Calls `handler` with each News posted while the subscription lives.
template <typename News, typename Handler>
[[nodiscard]] platform::NotificationCenter::Subscription
observe(platform::NotificationCenter& center, Handler handler)
{
    return center.addObserver(
        News::kName, [handler = std::move(handler)](const platform::Notification& notification) {
            handler(News::from(notification));
        });
}

} // namespace lumora::data
