// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/base/notification_center.h"

#include <utility>
#include <vector>

namespace lumora::platform {

struct NotificationCenter::Subscription::Observer {
    Handler handler;
    bool subscribed = true;
};

/// The subscriptions own the observers; the centre only knows them.
struct NotificationCenter::Observers {
    using List = std::vector<std::weak_ptr<Subscription::Observer>>;
    std::map<std::string, List, std::less<>> byName;
};

NotificationCenter::Subscription::Subscription(std::shared_ptr<Observer> observer)
    : observer_(std::move(observer))
{}

NotificationCenter::Subscription&
NotificationCenter::Subscription::operator=(Subscription&& other) noexcept
{
    std::swap(observer_, other.observer_);
    // The old one ends here and not with `other`.
    const Subscription ended(std::exchange(other.observer_, nullptr));
    return *this;
}

NotificationCenter::Subscription::~Subscription()
{
    // A delivery under way may hold the observer a little longer.
    if (observer_ != nullptr) {
        observer_->subscribed = false;
    }
}

NotificationCenter::NotificationCenter() : observers_(std::make_unique<Observers>()) {}

NotificationCenter::~NotificationCenter() = default;

NotificationCenter::Subscription NotificationCenter::addObserver(std::string_view name,
                                                                 Handler handler)
{
    auto observer = std::make_shared<Subscription::Observer>();
    observer->handler = std::move(handler);
    auto& list = observers_->byName[std::string(name)];
    std::erase_if(list, [](const auto& known) { return known.expired(); });
    list.push_back(observer);
    return Subscription(std::move(observer));
}

void NotificationCenter::post(const Notification& notification)
{
    const auto found = observers_->byName.find(notification.name);
    if (found == observers_->byName.end()) {
        return;
    }
    // A copy: handlers subscribe and unsubscribe.
    std::vector<std::shared_ptr<Subscription::Observer>> receivers;
    for (const auto& known : found->second) {
        if (auto observer = known.lock()) {
            receivers.push_back(std::move(observer));
        }
    }
    for (const auto& receiver : receivers) {
        if (receiver->subscribed) {
            receiver->handler(notification);
        }
    }
}

} // namespace lumora::platform
