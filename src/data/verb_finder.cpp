// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/verb_finder.h"

#include <unicode/locid.h>
#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <numeric>
#include <utility>

namespace lumora::data {

namespace {

/// "s'évanouir" and "évanouir (s')" are the same name.
struct Name {
    icu::UnicodeString verb;
    bool pronominal = false;
    /// As in s'en aller.
    bool en = false;

    bool operator==(const Name&) const = default;
};

icu::UnicodeString normalized(const icu::UnicodeString& text, bool decomposed)
{
    UErrorCode status = U_ZERO_ERROR;
    const auto* const normalizer = decomposed ? icu::Normalizer2::getNFDInstance(status)
                                              : icu::Normalizer2::getNFCInstance(status);
    auto result = normalizer->normalize(text, status);
    return U_FAILURE(status) ? text : result;
}

Name nameOf(std::string_view utf8)
{
    struct Particle {
        const char16_t* text;
        bool en;
    };
    static constexpr Particle kBefore[] = {{u"s'en ", true}, {u"se ", false}, {u"s'", false}};
    static constexpr Particle kAfter[] = {{u" (s'en)", true}, {u" (se)", false}, {u" (s')", false}};

    auto text =
        normalized(icu::UnicodeString::fromUTF8({utf8.data(), static_cast<int>(utf8.size())}),
                   false)
            .toLower(icu::Locale::getRoot());
    text.findAndReplace(u"\u2019", u"'").trim();
    for (const auto& before : kBefore) {
        const icu::UnicodeString prefix{before.text};
        if (text.startsWith(prefix)) {
            return {text.tempSubString(prefix.length()).trim(), true, before.en};
        }
    }
    for (const auto& after : kAfter) {
        const icu::UnicodeString suffix{after.text};
        if (text.endsWith(suffix)) {
            return {text.tempSubString(0, text.length() - suffix.length()).trim(), true, after.en};
        }
    }
    return {text};
}

icu::UnicodeString withoutAccents(const icu::UnicodeString& text)
{
    icu::UnicodeString plain;
    const auto decomposed = normalized(text, true);
    for (std::int32_t at = 0; at < decomposed.length(); at = decomposed.moveIndex32(at, 1)) {
        if (u_charType(decomposed.char32At(at)) != U_NON_SPACING_MARK) {
            plain.append(decomposed.char32At(at));
        }
    }
    return plain.findAndReplace(u"\u0153", u"oe").findAndReplace(u"\u00e6", u"ae");
}

Name withoutAccents(const Name& name)
{
    return {withoutAccents(name.verb), name.pronominal, name.en};
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
int distance(const icu::UnicodeString& left, const icu::UnicodeString& right)
{
    const auto width = static_cast<std::size_t>(right.length()) + 1;
    std::vector<int> beforeLast(width);
    std::vector<int> last(width);
    std::vector<int> row(width);
    std::iota(last.begin(), last.end(), 0);
    for (std::int32_t i = 0; i < left.length(); ++i) {
        row[0] = i + 1;
        for (std::int32_t j = 0; j < right.length(); ++j) {
            const auto at = static_cast<std::size_t>(j);
            row[at + 1] =
                std::min({last[at] + (left[i] == right[j] ? 0 : 1), last[at + 1] + 1, row[at] + 1});
            if (i > 0 && j > 0 && left[i] == right[j - 1] && left[i - 1] == right[j]) {
                row[at + 1] = std::min(row[at + 1], beforeLast[at - 1] + 1);
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
    const auto plain = withoutAccents(name);

    auto found = selected(verbs, [&](const Name& verb) { return verb == name; });
    // Who asks for the pronominal verb is not served with another.
    if (found.empty() && !name.pronominal) {
        found = selected(verbs, [&](const Name& verb) { return verb.verb == name.verb; });
    }
    if (found.empty()) {
        found = selected(verbs, [&](const Name& verb) { return withoutAccents(verb) == plain; });
    }
    if (found.empty() && !name.pronominal) {
        found = selected(verbs,
                         [&](const Name& verb) { return withoutAccents(verb.verb) == plain.verb; });
    }
    return found;
}

std::vector<std::string> namesNear(std::string_view typed, const std::vector<VerbPtr>& verbs)
{
    constexpr std::size_t kMostNames = 3;
    constexpr std::int32_t kShort = 5;

    const auto plain = withoutAccents(nameOf(typed)).verb;
    const int limit = plain.length() <= kShort ? 1 : 2;
    std::vector<std::pair<int, std::string>> near;
    for (const auto& verb : verbs) {
        const auto candidate = withoutAccents(nameOf(verb->french)).verb;
        if (std::abs(candidate.length() - plain.length()) > limit) {
            continue;
        }
        if (const int slips = distance(plain, candidate); slips <= limit) {
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
