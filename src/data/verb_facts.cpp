// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/verb_facts.h"

#include "platform/storage/database.h"

#include <string_view>
#include <utility>

namespace lumora::data {

namespace {

constexpr std::string_view kSelect =
    "SELECT verb_group, model, like_verbid, verb.french AS like_french, auxiliary, traits, "
    "participle, use_class FROM verb_facts LEFT JOIN verb ON verb._id = like_verbid "
    "WHERE verbid = ?";

/// The words between the separators; none of an empty text.
std::vector<std::string> words(std::string_view text, char separator)
{
    std::vector<std::string> result;
    while (!text.empty()) {
        const auto end = text.find(separator);
        result.emplace_back(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return result;
}

} // namespace

platform::Result<std::optional<VerbFacts>> readVerbFacts(platform::Database& database,
                                                         std::int64_t verbId)
{
    auto rows = database.executeQuery(kSelect, {verbId});
    if (!rows) {
        return tl::unexpected(rows.error());
    }
    if (!rows->next()) {
        if (rows->failed()) {
            return tl::unexpected(database.lastError());
        }
        return std::nullopt;
    }
    const auto text = [&](std::string_view column) {
        return rows->stringForColumn(rows->columnIndex(column));
    };
    const auto number = [&](std::string_view column) {
        return rows->longForColumn(rows->columnIndex(column));
    };
    VerbFacts facts;
    facts.group = static_cast<int>(number("verb_group"));
    facts.model = text("model");
    if (auto french = text("like_french"); !french.empty()) {
        facts.like = {number("like_verbid"), std::move(french)};
    }
    facts.auxiliaries = words(text("auxiliary"), '+');
    facts.traits = words(text("traits"), ',');
    facts.participle = words(text("participle"), ',');
    facts.use = static_cast<int>(number("use_class"));
    return facts;
}

} // namespace lumora::data
