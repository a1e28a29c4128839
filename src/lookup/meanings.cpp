// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/meanings.h"

#include "data/form_parts.h"
#include "data/translation_table.h"
#include "lookup/spelling.h"
#include "platform/storage/database.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

namespace lumora::lookup {

namespace {

constexpr int kPartOfSense = 100;

std::string statementOf(std::string_view language)
{
    return "SELECT _id, " + std::string{data::languageWithColumn(language).column} + " FROM verb";
}

/// Words that a longer sense has by chance.
constexpr std::string_view kSmallWords[] = {
    "the", "and", "with", "for",  "from", "into", "one's", "sth",  "der",  "die", "das",
    "den", "mit", "von",  "het",  "een",  "van",  "met",   "los",  "las",  "una", "con",
    "del", "gli", "che",  "nel",  "alla", "uma",  "com",   "dos",  "para", "que", "por",
    "out", "off", "ein",  "eine", "auf",  "aus",  "not",   "etwas"};
constexpr std::size_t kShortestPart = 3;

/// Whether a sense that has these words among others is meant by them.
bool mayBePart(std::string_view words)
{
    return words.size() >= kShortestPart &&
           std::find(std::begin(kSmallWords), std::end(kSmallWords), words) ==
               std::end(kSmallWords);
}

std::string foldedSense(std::string_view sense)
{
    return foldedWord(tidied(withoutAgreement(sense)));
}

} // namespace

platform::Result<Meanings> Meanings::read(platform::Database& database, std::string_view language)
{
    Meanings meanings;
    meanings.language_ = language;
    if (language == "fr") {
        return meanings;
    }
    auto rows = database.executeQuery(statementOf(language), {});
    if (!rows) {
        return tl::unexpected(rows.error());
    }
    while (rows->next()) {
        int place = 0;
        for (const auto& sense : data::spellingsOf(rows->stringForColumn(1))) {
            auto words = foldedSense(sense);
            if (!words.empty()) {
                meanings.senses_.push_back(
                    {rows->longForColumn(0), place++, " " + std::move(words) + " "});
            }
        }
    }
    if (rows->failed()) {
        return tl::unexpected(database.lastError());
    }
    return meanings;
}

std::vector<Meanings::Match> Meanings::find(std::string_view tidy) const
{
    constexpr std::string_view kTo = "to ";

    auto words = foldedSense(tidy);
    if (language_ == "en" && words.substr(0, kTo.size()) == kTo) {
        words.erase(0, kTo.size());
    }
    if (words.empty()) {
        return {};
    }
    const auto wanted = " " + words + " ";
    const bool part = mayBePart(words);
    std::vector<Match> found;
    for (const auto& sense : senses_) {
        const bool whole = sense.words == wanted;
        if (whole || (part && sense.words.find(wanted) != std::string::npos)) {
            const int rank = whole ? sense.place : kPartOfSense + sense.place;
            if (!found.empty() && found.back().verb == sense.verb) {
                found.back().rank = rank < found.back().rank ? rank : found.back().rank;
            } else {
                found.push_back({sense.verb, rank});
            }
        }
    }
    return found;
}

} // namespace lumora::lookup
