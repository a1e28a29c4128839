// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "conjugator/agreement.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace lumora::conjugator {

namespace {

/// What the feminine has in place of the masculine's end, from the vowels
/// before the first difference on: "oute" for absous, absoute.
std::string changedEnding(const std::string& masculine, const std::string& feminine)
{
    const auto ends =
        std::mismatch(masculine.begin(), masculine.end(), feminine.begin(), feminine.end());
    auto begin = ends.second;
    while (begin != feminine.begin() &&
           std::string_view("aeiou").find(*(begin - 1)) != std::string_view::npos) {
        --begin;
    }
    return {begin, feminine.end()};
}

std::string bracketedForm(Number number, const std::string& masculine, const std::string& feminine)
{
    const bool plain = feminine == masculine + "e";
    const bool keepsS = masculine.ends_with('s');
    const auto ending = plain ? std::string("e") : changedEnding(masculine, feminine);
    switch (number) {
    case Number::Singular:
        return masculine + "(" + ending + ")";
    case Number::Plural:
        return keepsS  ? masculine + "(" + ending + "s)"
               : plain ? masculine + "(e)s"
                       : masculine + "s(" + ending + "s)";
    case Number::Either:
        break;
    }
    return masculine + "(" + ending + ")(s)";
}

} // namespace

Agreement::Agreement(const Paradigm& verb, bool agrees)
    : agrees_(agrees && !verb.participle[1].empty())
{
    for (std::size_t form = 0; form < forms_.size(); ++form) {
        for (const auto& spelling : verb.participle[form]) {
            forms_[form].push_back(spelling.text);
        }
    }
}

std::vector<std::string> Agreement::bracketed(Number number) const
{
    if (!agrees_) {
        return forms_[0];
    }
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < forms_[0].size(); ++i) {
        texts.push_back(
            bracketedForm(number, forms_[0][i], forms_[1][std::min(i, forms_[1].size() - 1)]));
    }
    return texts;
}

std::vector<std::string> Agreement::words(Number number) const
{
    if (!agrees_) {
        return forms_[0];
    }
    std::vector<std::string> words;
    for (std::size_t form = 0; form < forms_.size(); ++form) {
        const bool plural = form >= 2;
        if (number != Number::Either && plural != (number == Number::Plural)) {
            continue;
        }
        for (const auto& word : forms_[form]) {
            if (std::find(words.begin(), words.end(), word) == words.end()) {
                words.push_back(word);
            }
        }
    }
    return words;
}

} // namespace lumora::conjugator
