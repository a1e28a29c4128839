// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/records/local_analytics.h"

#include "platform/files/atomic_file.h"

#include <nlohmann/json.hpp>

#include <cerrno>
#include <cstdint>
#include <optional>
#include <utility>

namespace lumora::platform {

namespace {

constexpr std::uintmax_t kMaximumFlagBytes = 4096;
constexpr const char* kFlagKey = "collectionEnabled";
constexpr const char* kFlagFile = "analytics.json";

std::string dumped(const nlohmann::ordered_json& object)
{
    return object.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

/// None when there is no such file.
std::optional<bool> readFlag(const std::filesystem::path& file)
{
    const auto content = readFile(file, kMaximumFlagBytes);
    if (!content && content.error().code == ENOENT) {
        return std::nullopt;
    }
    if (!content) {
        return false;
    }
    const auto object = nlohmann::json::parse(*content, nullptr, false);
    if (!object.is_object()) {
        return false;
    }
    // A damaged file must not turn a refusal into consent.
    const auto flag = object.find(kFlagKey);
    return flag != object.end() && flag->is_boolean() && flag->get<bool>();
}

} // namespace

LocalAnalytics::LocalAnalytics(std::filesystem::path stateFolder,
                               std::filesystem::path configFolder, const Clock& clock)
    : stateFolder_(std::move(stateFolder)), configFolder_(std::move(configFolder)), clock_(clock)
{
    if (const auto flag = readFlag(configFolder_ / kFlagFile)) {
        enabled_ = *flag;
    } else {
        takeOverOldFlag();
    }
}

void LocalAnalytics::takeOverOldFlag()
{
    const auto old = stateFolder_ / kFlagFile;
    const auto flag = readFlag(old);
    if (!flag) {
        return;
    }
    setAnalyticsCollectionEnabled(*flag);
    if (readFlag(configFolder_ / kFlagFile) == flag) {
        static_cast<void>(removeDurably(old));
    }
}

void LocalAnalytics::logEvent(std::string_view name,
                              const std::map<std::string, std::string>& parameters)
{
    if (!enabled_ || !makePrivateFolder(stateFolder_)) {
        return;
    }
    nlohmann::ordered_json event;
    event["time"] = clock_.secondsSince1970();
    event["event"] = name;
    event["parameters"] = parameters;
    static_cast<void>(appendLine(stateFolder_ / "analytics.jsonl", dumped(event), kMaximumBytes));
}

void LocalAnalytics::setAnalyticsCollectionEnabled(bool enabled)
{
    enabled_ = enabled;
    if (makePrivateFolder(configFolder_)) {
        const nlohmann::ordered_json flag = {{kFlagKey, enabled}};
        static_cast<void>(writeFileAtomically(configFolder_ / kFlagFile, dumped(flag) + '\n'));
    }
}

} // namespace lumora::platform
