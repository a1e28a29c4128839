// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/news.h"

#include <any>
#include <variant>

namespace lumora::data {

namespace {

constexpr const char* kVerb = "verb";
constexpr const char* kAdded = "added";
constexpr const char* kSelectedTab = "SelectedTab";

template <typename Value>
Value valueUnder(const char* key, const platform::Notification& notification)
{
    const auto found = notification.userInfo.find(key);
    const auto* value =
        found == notification.userInfo.end() ? nullptr : std::any_cast<Value>(&found->second);
    return value == nullptr ? Value{} : *value;
}

template <typename Value>
Value objectOf(const platform::Notification& notification, Value fallback)
{
    const auto* object = std::get_if<Value>(&notification.object);
    return object == nullptr ? fallback : *object;
}

} // namespace

platform::Notification VerbFavouriteToggled::notification() const
{
    platform::Notification result{std::string{kName}, sender, {}};
    if (verb) {
        result.userInfo.emplace(kVerb, verb);
    }
    if (!added.empty()) {
        result.userInfo.emplace(kAdded, added);
    }
    return result;
}

VerbFavouriteToggled VerbFavouriteToggled::from(const platform::Notification& notification)
{
    return {objectOf<const platform::ViewController*>(notification, nullptr),
            valueUnder<VerbPtr>(kVerb, notification),
            valueUnder<std::vector<std::int64_t>>(kAdded, notification)};
}

platform::Notification VerbViewed::notification() const
{
    return {std::string{kName}, {}, {{kVerb, verb}}};
}

VerbViewed VerbViewed::from(const platform::Notification& notification)
{
    return {valueUnder<VerbPtr>(kVerb, notification)};
}

platform::Notification RefreshHistory::notification() const
{
    return {std::string{kName}, {}, {}};
}

platform::Notification RefreshConjugations::notification() const
{
    return {std::string{kName}, {}, {}};
}

platform::Notification HistoryFeatureToggled::notification() const
{
    return {std::string{kName}, on, {}};
}

HistoryFeatureToggled HistoryFeatureToggled::from(const platform::Notification& notification)
{
    return {objectOf(notification, true)};
}

platform::Notification TabOpenEvent::notification() const
{
    return {std::string{kName}, {}, {{kSelectedTab, selectedTab}}};
}

TabOpenEvent TabOpenEvent::from(const platform::Notification& notification)
{
    return {valueUnder<std::string>(kSelectedTab, notification)};
}

} // namespace lumora::data
