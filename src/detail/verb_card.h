// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/verb_facts.h"
#include "data/verb_relations.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace lumora::platform {
class Bundle;
class Device;
class SettingsStore;
} // namespace lumora::platform

namespace lumora::detail {

/// What sentences for a person are made with: the texts, the chosen set of tense names
/// and the chosen language of translations.
struct Wording {
    const platform::Bundle& bundle;
    const platform::SettingsStore& settings;
    const platform::Device& device;
};

/// A verb that a tap leads to.
struct VerbLink {
    std::int64_t id = -1;
    std::string title;
};

/// One thing about a verb: a text, or verbs to go to.
struct VerbCardLine {
    std::string label;
    std::string text;
    std::vector<VerbLink> links;
};

/// "2nd group · like finir · avoir": a verb's grammar at a glance, for a verb whose
/// forms are loaded.
std::string verbSummary(const data::Verb& verb, const data::VerbFacts& facts,
                        const Wording& wording);

/// All that is known of a verb's grammar, for a verb whose forms are loaded.
/// What does not apply to it has no line.
std::vector<VerbCardLine> verbCard(const data::Verb& verb,
                                   const std::optional<data::VerbFacts>& facts,
                                   const data::VerbRelations& relations, const Wording& wording);

} // namespace lumora::detail
