// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/typos.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace lumora::lookup {

namespace {

/// Of a letter that stands in one word only, after this one.
int extraCost(std::string_view word, std::size_t at)
{
    return at > 0 && word[at] == word[at - 1] ? kDoubledLetterCost : kOneTypoCost;
}

} // namespace

int typoCost(std::string_view typed, std::string_view meant, int most)
{
    const auto width = meant.size() + 1;
    std::vector<int> beforeLast(width);
    std::vector<int> last(width);
    std::vector<int> row(width);
    for (std::size_t j = 0; j < meant.size(); ++j) {
        last[j + 1] = last[j] + extraCost(meant, j);
    }
    for (std::size_t i = 0; i < typed.size(); ++i) {
        row[0] = last[0] + extraCost(typed, i);
        int least = row[0];
        for (std::size_t j = 0; j < meant.size(); ++j) {
            row[j + 1] =
                std::min({last[j] + (typed[i] == meant[j] ? 0 : kOneTypoCost),
                          last[j + 1] + extraCost(typed, i), row[j] + extraCost(meant, j)});
            if (i > 0 && j > 0 && typed[i] == meant[j - 1] && typed[i - 1] == meant[j]) {
                row[j + 1] = std::min(row[j + 1], beforeLast[j - 1] + kOneTypoCost);
            }
            least = std::min(least, row[j + 1]);
        }
        if (least > most) {
            return most + 1;
        }
        std::swap(beforeLast, last);
        std::swap(last, row);
    }
    return std::min(last.back(), most + 1);
}

std::vector<Typo> wordsOneTypoAway(std::string_view typed, const WordIndex& words)
{
    constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyz-'";

    std::vector<std::string> candidates;
    for (std::size_t at = 0; at <= typed.size(); ++at) {
        const std::string before{typed.substr(0, at)};
        const auto after = typed.substr(at);
        for (const char letter : kLetters) {
            candidates.push_back(before + letter + std::string{after});
            if (!after.empty()) {
                candidates.push_back(before + letter + std::string{after.substr(1)});
            }
        }
        if (!after.empty()) {
            candidates.push_back(before + std::string{after.substr(1)});
        }
        if (after.size() > 1) {
            candidates.push_back(before + after[1] + after[0] + std::string{after.substr(2)});
        }
    }
    std::sort(candidates.begin(), candidates.end());
    candidates.erase(std::unique(candidates.begin(), candidates.end()), candidates.end());
    std::vector<Typo> found;
    for (auto& candidate : candidates) {
        if (candidate != typed && !words.find(candidate).empty()) {
            const int cost = typoCost(typed, candidate, kOneTypoCost);
            found.push_back({std::move(candidate), cost});
        }
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const Typo& left, const Typo& right) { return left.cost < right.cost; });
    return found;
}

} // namespace lumora::lookup
