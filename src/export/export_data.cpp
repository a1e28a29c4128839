// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "export/export_data.h"

#include "data/tense_table.h"
#include "data/verb.h"
#include "platform/machine/bundle.h"
#include "text/text.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <string_view>
#include <utility>

namespace lumora::exporting {

namespace {

using Json = nlohmann::ordered_json;

// Dutch and Turkish have no key: the templates in use know none.
constexpr std::pair<const char*, std::string data::Verb::*> kNames[] = {
    {"german", &data::Verb::german},   {"french", &data::Verb::french},
    {"spanish", &data::Verb::spanish}, {"italian", &data::Verb::italian},
    {"english", &data::Verb::english}, {"portuguese", &data::Verb::portuguese},
};

constexpr std::pair<const char*, const char*> kMoodTitles[] = {
    {"indicative", "tense.ind"},
    {"subjunctive", "tense.sub"},
    {"conditional", "tense.con"},
    {"other", "tense.other"},
};

/// "tense.ind.present" is "tense_ind_present" to a template: a dot there means
/// a member.
std::string titleName(std::string_view titleKey)
{
    std::string name{titleKey};
    std::replace(name.begin(), name.end(), '.', '_');
    return name;
}

/// "indicatifPresent" is "IndicatifPresent" to a template.
std::string listName(std::string_view identifier)
{
    std::string name{identifier};
    name.front() = static_cast<char>(name.front() - 'a' + 'A');
    return name;
}

Json listOf(const data::ConjugationList& forms)
{
    auto list = Json::array();
    for (const auto& form : forms) {
        list.push_back({{"pronoun", form->pronoun}, {"verb", form->verb}});
    }
    return list;
}

template <typename Action>
void forEachBlock(const Action& action)
{
    for (int segment = 0; segment < data::kMoodCount; ++segment) {
        for (const auto& block : data::blocksOfSegment(segment)) {
            action(block);
        }
    }
}

/// In JSON these characters stand only inside strings, so all can be escaped.
/// The line and paragraph separators end a line in a script, though not in
/// JSON.
std::string escapedForScript(std::string json)
{
    json = text::replaced(std::move(json), "/", "\\/");
    json = text::replaced(std::move(json), "\u2028", "\\u2028");
    return text::replaced(std::move(json), "\u2029", "\\u2029");
}

} // namespace

std::optional<std::string> exportData(const data::Verb& verb, const platform::Bundle& bundle,
                                      const platform::SettingsStore& settings,
                                      const platform::Device& device)
{
    auto data = Json::object();
    for (const auto& [name, text] : kNames) {
        data[name] = verb.*text;
    }
    data["translated"] = verb.translation(settings, device);
    for (const auto& [name, key] : kMoodTitles) {
        data[name] = platform::localizedString(bundle, key);
    }
    forEachBlock([&](const data::TenseBlock& block) {
        data[titleName(block.titleKey)] = data::tenseTitle(block.titleKey, bundle, settings);
    });
    forEachBlock([&](const data::TenseBlock& block) {
        data[listName(block.tense.identifier)] = listOf(verb.*block.tense.forms);
    });
    try {
        return escapedForScript(data.dump());
    } catch (const Json::type_error&) {
        // The library's way to say that a text is no UTF-8.
        return std::nullopt;
    }
}

} // namespace lumora::exporting
