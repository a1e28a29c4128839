// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/verb_finder.h"

#include "text/text.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <numeric>
#include <string>
#include <utility>

namespace lumora::data {

namespace {

/// "s'évanouir" and "évanouir (s')" are the same name.
struct Name {
    std::string verb;
    bool pronominal = false;
    /// As in s'en aller.
    bool en = false;

    bool operator==(const Name&) const = default;
};

Name nameOf(std::string_view typed)
{
    struct Particle {
        std::string_view text;
        bool en;
    };
    static constexpr Particle kBefore[] = {{"s'en ", true}, {"se ", false}, {"s'", false}};
    static constexpr Particle kAfter[] = {{" (s'en)", true}, {" (se)", false}, {" (s')", false}};

    const auto whole =
        text::trimmed(text::replaced(text::lowerCased(text::composed(typed)), "\u2019", "'"));
    const std::string_view name = whole;
    for (const auto& before : kBefore) {
        if (name.starts_with(before.text)) {
            return {text::trimmed(name.substr(before.text.size())), true, before.en};
        }
    }
    for (const auto& after : kAfter) {
        if (name.ends_with(after.text)) {
            return {text::trimmed(name.substr(0, name.size() - after.text.size())), true, after.en};
        }
    }
    return {whole};
}

Name folded(const Name& name)
{
    return {text::folded(name.verb), name.pronominal, name.en};
}

template <typename Condition>
std::vector<VerbPtr> selected(const std::vector<VerbPtr>& verbs, const Condition& condition)
{
    std::vector<VerbPtr> result;
    std::copy_if(verbs.begin(), verbs.end(), std::back_inserter(result),
                 [&](const VerbPtr& verb) { return condition(nameOf(verb->french)); });
    return result;
}

/// How many letters must be put in, taken out or changed, or neighbours swapped,
/// to make one text the other.
std::size_t distance(std::u32string_view left, std::u32string_view right)
{
    const auto width = right.size() + 1;
    std::vector<std::size_t> beforeLast(width);
    std::vector<std::size_t> last(width);
    std::vector<std::size_t> row(width);
    std::iota(last.begin(), last.end(), std::size_t{0});
    for (std::size_t i = 0; i < left.size(); ++i) {
        row[0] = i + 1;
        for (std::size_t j = 0; j < right.size(); ++j) {
            row[j + 1] =
                std::min({last[j] + (left[i] == right[j] ? 0U : 1U), last[j + 1] + 1, row[j] + 1});
            if (i > 0 && j > 0 && left[i] == right[j - 1] && left[i - 1] == right[j]) {
                row[j + 1] = std::min(row[j + 1], beforeLast[j - 1] + 1);
            }
        }
        std::swap(beforeLast, last);
        std::swap(last, row);
    }
    return last.back();
}

} // namespace

std::vector<VerbPtr> verbsNamed(std::string_view typed, const std::vector<VerbPtr>& verbs)
{
    const auto name = nameOf(typed);
    const auto plain = folded(name);

    auto found = selected(verbs, [&](const Name& verb) { return verb == name; });
    // A name with "se" must not find a verb that has no reflexive pronoun.
    if (found.empty() && !name.pronominal) {
        found = selected(verbs, [&](const Name& verb) { return verb.verb == name.verb; });
    }
    if (found.empty()) {
        found = selected(verbs, [&](const Name& verb) { return folded(verb) == plain; });
    }
    if (found.empty() && !name.pronominal) {
        found = selected(verbs,
                         [&](const Name& verb) { return text::folded(verb.verb) == plain.verb; });
    }
    return found;
}

std::vector<std::string> namesNear(std::string_view typed, const std::vector<VerbPtr>& verbs)
{
    constexpr std::size_t kMostNames = 3;
    constexpr std::size_t kShort = 5;

    const auto plain = text::characters(text::folded(nameOf(typed).verb));
    const std::size_t limit = plain.size() <= kShort ? 1 : 2;
    std::vector<std::pair<std::size_t, std::string>> near;
    for (const auto& verb : verbs) {
        const auto candidate = text::characters(text::folded(nameOf(verb->french).verb));
        const auto [shorter, longer] = std::minmax({candidate.size(), plain.size()});
        if (longer - shorter > limit) {
            continue;
        }
        if (const auto slips = distance(plain, candidate); slips <= limit) {
            near.emplace_back(slips, verb->french);
        }
    }
    std::sort(near.begin(), near.end());
    near.erase(std::unique(near.begin(), near.end()), near.end());
    std::vector<std::string> names;
    for (std::size_t i = 0; i < std::min(near.size(), kMostNames); ++i) {
        names.push_back(near[i].second);
    }
    return names;
}

} // namespace lumora::data
