// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "verbdb/multiplied_content.h"

#include <array>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace lumora::verbdb {

namespace {

/// Consonants first: whatever follows, nothing is elided before them.
constexpr std::array<std::string_view, 15> kPrefixes{"contre", "sur",  "sous",  "trans", "super",
                                                     "micro",  "télé", "radio", "post",  "multi",
                                                     "pluri",  "demi", "mono",  "bio",   "vidéo"};

} // namespace

const int kMostTimes = static_cast<int>(kPrefixes.size()) + 1;

Content multipliedContent(Content content, int times)
{
    const auto originals = content.verbs.size();
    const auto lastId = content.verbs.back().id;
    std::unordered_set<std::string> taken;
    for (const auto& verb : content.verbs) {
        taken.insert(verb.entry.infinitive);
    }
    content.verbs.reserve(originals * static_cast<std::size_t>(times));
    for (int copy = 1; copy < times; ++copy) {
        const auto prefix = kPrefixes.at(static_cast<std::size_t>(copy) - 1);
        for (std::size_t i = 0; i < originals; ++i) {
            auto verb = content.verbs[i];
            verb.id += copy * lastId;
            verb.entry.aspirated = false;
            auto& infinitive = verb.entry.infinitive;
            do {
                infinitive.insert(0, prefix);
            } while (!taken.insert(infinitive).second);
            content.verbs.push_back(std::move(verb));
        }
    }
    return content;
}

} // namespace lumora::verbdb
