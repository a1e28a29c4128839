// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/records/local_analytics.h"

#include "platform/files/atomic_file.h"

#include <nlohmann/json.hpp>

#include <cerrno>
#include <cstdint>
#include <utility>

namespace lumora::platform {

namespace {

constexpr std::uintmax_t kMaximumFlagBytes = 4096;
constexpr const char* kFlagKey = "collectionEnabled";

std::string dumped(const nlohmann::ordered_json& object)
{
    return object.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

bool readFlag(const std::filesystem::path& file)
{
    const auto content = readFile(file, kMaximumFlagBytes);
    if (!content) {
        return content.error().code == ENOENT;
    }
    const auto object = nlohmann::json::parse(*content, nullptr, false);
    if (!object.is_object()) {
        return false;
    }
    // Whoever once refused must not be counted because the file broke.
    const auto flag = object.find(kFlagKey);
    return flag != object.end() && flag->is_boolean() && flag->get<bool>();
}

} // namespace

LocalAnalytics::LocalAnalytics(std::filesystem::path folder, const Clock& clock)
    : folder_(std::move(folder)), clock_(clock), enabled_(readFlag(folder_ / "analytics.json"))
{}

void LocalAnalytics::logEvent(std::string_view name,
                              const std::map<std::string, std::string>& parameters)
{
    if (!enabled_ || !makePrivateFolder(folder_)) {
        return;
    }
    nlohmann::ordered_json event;
    event["time"] = clock_.secondsSince1970();
    event["event"] = name;
    event["parameters"] = parameters;
    static_cast<void>(appendLine(folder_ / "analytics.jsonl", dumped(event), kMaximumBytes));
}

void LocalAnalytics::setAnalyticsCollectionEnabled(bool enabled)
{
    enabled_ = enabled;
    if (makePrivateFolder(folder_)) {
        const nlohmann::ordered_json flag = {{kFlagKey, enabled}};
        static_cast<void>(writeFileAtomically(folder_ / "analytics.json", dumped(flag) + '\n'));
    }
}

} // namespace lumora::platform
