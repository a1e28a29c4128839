// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <any>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <variant>

namespace lumora::platform {

class ViewController;

/// A message from one screen to all that subscribed to its name.
struct Notification {
    std::string name;
    /// Who posted it, or the one value it is about.
    std::variant<std::monostate, const ViewController*, bool> object;
    std::map<std::string, std::any, std::less<>> userInfo;
};

/// Delivers at once, to every observer in the order in which they subscribed.
///
/// Observers may subscribe and unsubscribe during a delivery: one added then
/// waits for the next notification, one removed is not called any more.
class NotificationCenter {
public:
    using Handler = std::function<void(const Notification&)>;

    /// Unsubscribes when destroyed. It may outlive the centre.
    class Subscription {
    public:
        Subscription() = default;
        Subscription(Subscription&&) noexcept = default;
        Subscription& operator=(Subscription&& other) noexcept;
        ~Subscription();

    private:
        friend class NotificationCenter;
        struct Observer;
        explicit Subscription(std::shared_ptr<Observer> observer);
        std::shared_ptr<Observer> observer_;
    };

    NotificationCenter();
    ~NotificationCenter();
    NotificationCenter(const NotificationCenter&) = delete;
    NotificationCenter& operator=(const NotificationCenter&) = delete;

    [[nodiscard]] Subscription addObserver(std::string_view name, Handler handler);
    void post(const Notification& notification);

private:
    struct Observers;
    std::unique_ptr<Observers> observers_;
};

} // namespace lumora::platform
