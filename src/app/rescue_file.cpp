// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/rescue_file.h"

#include "platform/files/atomic_file.h"

#include <algorithm>
#include <string>
#include <system_error>
#include <utility>

#include <nlohmann/json.hpp>

namespace lumora::app {

namespace {

using nlohmann::json;

std::optional<std::int32_t> readInteger(const json& value)
{
    if (!value.is_number_integer()) {
        return std::nullopt;
    }
    return static_cast<std::int32_t>(value.get<std::int64_t>());
}

std::optional<UserData> parse(const std::string& text)
{
    const auto root = json::parse(text, nullptr, false);
    if (!root.is_object() || !root.contains("favourites") || !root.contains("history") ||
        !root["favourites"].is_array() || !root["history"].is_array()) {
        return std::nullopt;
    }
    UserData data;
    for (const auto& favourite : root["favourites"]) {
        const auto verb = readInteger(favourite);
        if (!verb) {
            return std::nullopt;
        }
        data.favourites.push_back(*verb);
    }
    for (const auto& entry : root["history"]) {
        if (!entry.is_array() || entry.size() != 2) {
            return std::nullopt;
        }
        const auto verb = readInteger(entry[0]);
        const auto timestamp = readInteger(entry[1]);
        if (!verb || !timestamp) {
            return std::nullopt;
        }
        data.history.emplace_back(*verb, *timestamp);
    }
    return data;
}

} // namespace

platform::Result<bool> fileExists(const std::filesystem::path& file)
{
    std::error_code error;
    const auto status = std::filesystem::status(file, error);
    if (status.type() == std::filesystem::file_type::not_found) {
        return false;
    }
    if (error) {
        return tl::make_unexpected(
            platform::Error{file.string() + ": " + error.message(), error.value()});
    }
    return true;
}

UserData mergedUserData(UserData present, const UserData& rescued)
{
    const auto before = present;
    for (const auto verb : rescued.favourites) {
        if (std::find(before.favourites.begin(), before.favourites.end(), verb) ==
            before.favourites.end()) {
            present.favourites.push_back(verb);
        }
    }
    for (const auto& [verb, timestamp] : rescued.history) {
        const bool asNew = std::any_of(before.history.begin(), before.history.end(),
                                       [&, id = verb, time = timestamp](const auto& entry) {
                                           return entry.first == id && entry.second >= time;
                                       });
        if (!asNew) {
            present.history.emplace_back(verb, timestamp);
        }
    }
    return present;
}

RescueFile::RescueFile(std::filesystem::path file) : file_{std::move(file)} {}

platform::Result<std::optional<UserData>> RescueFile::read() const
{
    const auto exists = fileExists(file_);
    if (!exists) {
        return tl::make_unexpected(exists.error());
    }
    if (!*exists) {
        return std::optional<UserData>{};
    }
    const auto text = platform::readFile(file_);
    if (!text) {
        return tl::make_unexpected(text.error());
    }
    auto data = parse(*text);
    if (!data) {
        auto aside = file_;
        aside += ".damaged";
        if (auto renamed = platform::renameDurably(file_, aside); !renamed) {
            return tl::make_unexpected(renamed.error());
        }
    }
    return data;
}

platform::Result<void> RescueFile::write(const UserData& data) const
{
    json root{{"favourites", data.favourites}, {"history", json::array()}};
    for (const auto& [verb, timestamp] : data.history) {
        root["history"].push_back({verb, timestamp});
    }
    return platform::writeFileAtomically(file_, root.dump());
}

platform::Result<void> RescueFile::remove() const
{
    platform::removeAbandonedTemporaries(file_);
    return platform::removeDurably(file_);
}

} // namespace lumora::app
