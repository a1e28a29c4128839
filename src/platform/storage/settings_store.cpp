// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/storage/settings_store.h"

#include <fmt/format.h>

#include <cmath>
#include <limits>
#include <type_traits>
#include <utility>

namespace lumora::platform {

namespace {

std::int64_t truncated(double number)
{
    constexpr double kEnd = 9223372036854775808.0; // 2 to the 63
    if (std::isnan(number)) {
        return 0;
    }
    if (number >= kEnd) {
        return std::numeric_limits<std::int64_t>::max();
    }
    if (number < -kEnd) {
        return std::numeric_limits<std::int64_t>::min();
    }
    return static_cast<std::int64_t>(number);
}

} // namespace

bool SettingsStore::boolForKey(std::string_view key) const
{
    const auto found = values_.find(key);
    if (found == values_.end()) {
        return false;
    }
    return std::visit(
        [](const auto& value) {
            if constexpr (std::is_same_v<std::decay_t<decltype(value)>, std::string>) {
                return false;
            } else {
                return value != 0;
            }
        },
        found->second);
}

std::int64_t SettingsStore::integerForKey(std::string_view key) const
{
    const auto found = values_.find(key);
    if (found == values_.end()) {
        return 0;
    }
    return std::visit(
        [](const auto& value) -> std::int64_t {
            using Kind = std::decay_t<decltype(value)>;
            if constexpr (std::is_same_v<Kind, std::string>) {
                return 0;
            } else if constexpr (std::is_same_v<Kind, double>) {
                return truncated(value);
            } else {
                return value;
            }
        },
        found->second);
}

float SettingsStore::floatForKey(std::string_view key) const
{
    const auto found = values_.find(key);
    if (found == values_.end()) {
        return 0;
    }
    return std::visit(
        [](const auto& value) -> float {
            if constexpr (std::is_same_v<std::decay_t<decltype(value)>, std::string>) {
                return 0;
            } else {
                return static_cast<float>(value);
            }
        },
        found->second);
}

std::optional<std::string> SettingsStore::stringForKey(std::string_view key) const
{
    const auto found = values_.find(key);
    if (found == values_.end()) {
        return std::nullopt;
    }
    return std::visit(
        [](const auto& value) -> std::string {
            using Kind = std::decay_t<decltype(value)>;
            if constexpr (std::is_same_v<Kind, std::string>) {
                return value;
            } else if constexpr (std::is_same_v<Kind, bool>) {
                return value ? "1" : "0";
            } else {
                return fmt::format("{}", value);
            }
        },
        found->second);
}

std::optional<SettingValue> SettingsStore::objectForKey(std::string_view key) const
{
    const auto found = values_.find(key);
    return found == values_.end() ? std::nullopt : std::optional(found->second);
}

void SettingsStore::setValue(SettingValue value, std::string_view key)
{
    const auto found = values_.find(key);
    if (found == values_.end()) {
        values_.emplace(key, std::move(value));
    } else if (found->second != value) {
        found->second = std::move(value);
    } else {
        return;
    }
    changed_ = true;
}

void SettingsStore::removeValue(std::string_view key)
{
    if (const auto found = values_.find(key); found != values_.end()) {
        values_.erase(found);
        changed_ = true;
    }
}

void SettingsStore::setValues(Values values)
{
    values_ = std::move(values);
}

std::optional<bool> boolObjectForKey(const SettingsStore& settings, std::string_view key)
{
    const auto object = settings.objectForKey(key);
    if (!object || !std::holds_alternative<bool>(*object)) {
        return std::nullopt;
    }
    return std::get<bool>(*object);
}

} // namespace lumora::platform
