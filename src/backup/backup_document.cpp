// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "backup/backup_document.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <ctime>

#include <nlohmann/json.hpp>

namespace lumora::backup {

namespace {

using nlohmann::json;
// Keys stay in the order in which a reader expects them.
using nlohmann::ordered_json;

constexpr const char* kVersionKey = "lumora";
constexpr int kVersion = 1;
/// Deeper than any document of ours; what lies below is not kept in memory.
constexpr int kDepth = 3;
constexpr double kMilliseconds = 1000;
/// The end of the year 9999; a damaged history may name any time.
constexpr double kLastSecond = 253402300799;

std::string isoTime(double secondsSince1970)
{
    const auto seconds = static_cast<std::time_t>(secondsSince1970);
    std::tm parts{};
    std::array<char, 32> text{};
    if (gmtime_r(&seconds, &parts) == nullptr) {
        return {};
    }
    return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%SZ", &parts)};
}

ordered_json jsonOf(const SavedVerb& verb)
{
    ordered_json entry = ordered_json::object();
    if (verb.id) {
        entry["id"] = *verb.id;
    }
    entry["french"] = verb.french;
    return entry;
}

std::optional<SavedVerb> readVerb(const json& entry)
{
    if (!entry.is_object()) {
        return std::nullopt;
    }
    const auto french = entry.find("french");
    if (french == entry.end() || !french->is_string()) {
        return std::nullopt;
    }
    SavedVerb verb{std::nullopt, french->get<std::string>()};
    if (const auto id = entry.find("id"); id != entry.end() && id->is_number_integer()) {
        verb.id = id->get<std::int64_t>();
    }
    return verb;
}

std::optional<SavedView> readView(const json& entry)
{
    auto verb = readVerb(entry);
    if (!verb) {
        return std::nullopt;
    }
    const auto viewed = entry.find("viewed");
    if (viewed == entry.end() || !viewed->is_number() || viewed->get<double>() < 0) {
        return std::nullopt;
    }
    return SavedView{*std::move(verb), viewed->get<double>()};
}

template <typename Entry>
void readEntries(const json& root, const char* key, std::optional<Entry> (*read)(const json&),
                 std::vector<Entry>& entries, int& unreadable)
{
    const auto list = root.find(key);
    if (list == root.end()) {
        return;
    }
    for (const auto& element : *list) {
        if (auto entry = read(element)) {
            entries.push_back(*std::move(entry));
        } else {
            ++unreadable;
        }
    }
}

bool isListOrAbsent(const json& root, const char* key)
{
    const auto found = root.find(key);
    return found == root.end() || found->is_array();
}

} // namespace

std::string textOf(const BackupDocument& document, double now)
{
    ordered_json root{{kVersionKey, kVersion},
                      {"exported", isoTime(now)},
                      {"favourites", ordered_json::array()},
                      {"history", ordered_json::array()}};
    for (const auto& verb : document.favourites) {
        root["favourites"].push_back(jsonOf(verb));
    }
    for (const auto& [verb, viewed] : document.history) {
        auto entry = jsonOf(verb);
        // Without the noise of the last binary digits.
        entry["viewed"] =
            std::round(std::clamp(viewed, 0.0, kLastSecond) * kMilliseconds) / kMilliseconds;
        root["history"].push_back(std::move(entry));
    }
    return root.dump(2, ' ', false, json::error_handler_t::replace) + "\n";
}

tl::expected<BackupDocument, DocumentProblem> parseDocument(std::string_view text)
{
    const auto shallow = [](int depth, json::parse_event_t /*event*/, const json& /*value*/) {
        return depth <= kDepth;
    };
    const auto root = json::parse(text, shallow, false);
    if (!root.is_object()) {
        return tl::unexpected(DocumentProblem::NotABackup);
    }
    const auto version = root.find(kVersionKey);
    if (version == root.end() || !version->is_number_integer() ||
        version->get<double>() < kVersion) {
        return tl::unexpected(DocumentProblem::NotABackup);
    }
    if (version->get<double>() > kVersion) {
        return tl::unexpected(DocumentProblem::FromNewerVersion);
    }
    if (!isListOrAbsent(root, "favourites") || !isListOrAbsent(root, "history")) {
        return tl::unexpected(DocumentProblem::NotABackup);
    }
    BackupDocument document;
    readEntries(root, "favourites", readVerb, document.favourites, document.unreadable);
    readEntries(root, "history", readView, document.history, document.unreadable);
    return document;
}

} // namespace lumora::backup
