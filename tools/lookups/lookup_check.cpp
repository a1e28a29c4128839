// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookups/lookup_check.h"

#include "data/form_parts.h"
#include "text/text.h"

#include <algorithm>
#include <iterator>
#include <random>
#include <set>
#include <stdexcept>
#include <string_view>

namespace lumora::lookups {

namespace {

constexpr std::size_t kFirst = 3;
constexpr std::size_t kFailuresKept = 40;

struct TableRow {
    std::int64_t verb;
    std::int64_t order;
    std::string pronoun;
    std::string form;
};

std::vector<TableRow> rowsOf(platform::Database& database, const std::string& condition)
{
    auto rows = database.executeQuery(
        "SELECT verbid, conj_order, pronoun, verb FROM conjugation WHERE display = 1 AND " +
            condition + " ORDER BY verbid, conj_order",
        {});
    if (!rows) {
        throw std::runtime_error(rows.error().message);
    }
    std::vector<TableRow> result;
    while (rows->next()) {
        result.push_back({rows->longForColumn(0), rows->longForColumn(1), rows->stringForColumn(2),
                          rows->stringForColumn(3)});
    }
    return result;
}

std::vector<lookup::Reading> readingsOf(platform::Database& database, lookup::Lookup& lookup,
                                        const std::string& text)
{
    auto readings = lookup.read(database, text, "en");
    if (!readings) {
        throw std::runtime_error(readings.error().message);
    }
    return *std::move(readings);
}

/// "qu'il s'" for "qu'il/elle/on s'".
std::string spokenPronoun(const std::string& pronoun)
{
    const auto slash = pronoun.find('/');
    if (slash == std::string::npos) {
        return pronoun;
    }
    const auto blank = pronoun.find(' ', slash);
    return pronoun.substr(0, slash) + (blank == std::string::npos ? "" : pronoun.substr(blank));
}

std::string spoken(const std::string& pronoun, const std::string& form)
{
    // "ai crevé, je suis crevé(e)" behind "j'" has the other pronoun in it.
    for (const std::string_view own : {"je ", "j'", "que je ", "que j'"}) {
        if (form.substr(0, own.size()) == own) {
            return form;
        }
    }
    const auto lead = spokenPronoun(pronoun);
    return lead.empty() || lead.back() == '\'' ? lead + form : lead + " " + form;
}

void note(Outcome& outcome, bool right, const std::string& text,
          const std::vector<lookup::Reading>& readings)
{
    ++outcome.asked;
    if (right) {
        return;
    }
    ++outcome.wrong;
    if (outcome.failures.size() < kFailuresKept) {
        std::string told = "\"" + text + "\":";
        for (const auto& reading : readings) {
            told += " " + reading.headword + "/" + reading.form + "/" +
                    std::string{lookup::nameOf(reading.kind)};
        }
        outcome.failures.push_back(told);
    }
}

bool isAmongFirst(const std::vector<lookup::Reading>& readings, std::int64_t verb)
{
    const auto first = std::min(readings.size(), kFirst);
    return std::any_of(readings.begin(), readings.begin() + static_cast<std::ptrdiff_t>(first),
                       [&](const auto& reading) { return reading.verb == verb; });
}

std::size_t verbsIn(const std::vector<lookup::Reading>& readings)
{
    std::set<std::int64_t> verbs;
    for (const auto& reading : readings) {
        verbs.insert(reading.verb);
    }
    return verbs.size();
}

bool namesRow(const std::vector<lookup::Reading>& readings, const TableRow& row)
{
    return std::any_of(readings.begin(), readings.end(), [&](const lookup::Reading& reading) {
        return reading.verb == row.verb &&
               std::any_of(reading.places.begin(), reading.places.end(),
                           [&](const auto& place) { return place.order == row.order; });
    });
}

/// Letters of French are of one or two bytes.
std::string encoded(std::u32string_view word)
{
    constexpr unsigned kTwoBytes = 0x80;

    std::string text;
    for (const auto letter : word) {
        const auto code = static_cast<unsigned>(letter);
        if (code < kTwoBytes) {
            text += static_cast<char>(code);
        } else {
            text += static_cast<char>(0xC0U | (code >> 6U));
            text += static_cast<char>(0x80U | (code & 0x3FU));
        }
    }
    return text;
}

/// The first letter that has an accent loses it.
void dropAccent(std::u32string& word)
{
    for (auto& letter : word) {
        const auto plain = text::characters(text::folded(encoded({&letter, 1})));
        if (plain.size() == 1 && plain.front() != letter) {
            letter = plain.front();
            return;
        }
    }
}

std::string withTypo(std::u32string word, std::mt19937& random)
{
    const auto below = [&](std::size_t count) { return random() % count; };
    const auto letter = [&] { return static_cast<char32_t>(U'a' + below(26)); };
    const auto at = below(word.size());
    switch (below(6)) {
    case 0:
        word.erase(at, 1);
        break;
    case 1:
        word.insert(at, 1, letter());
        break;
    case 2:
        word[at] = letter();
        break;
    case 3:
        std::swap(word[at], word[at + 1 < word.size() ? at + 1 : at - 1]);
        break;
    case 4:
        word.insert(at, 1, word[at]);
        break;
    default:
        dropAccent(word);
    }
    return encoded(word);
}

} // namespace

Outcome checkRows(platform::Database& database, lookup::Lookup& lookup, std::size_t stride)
{
    Outcome outcome;
    for (const auto& row : rowsOf(database, "verbid % " + std::to_string(stride) + " = 0")) {
        for (const auto& form : data::spellingsOf(row.form)) {
            const auto text = spoken(row.pronoun, form);
            const auto readings = readingsOf(database, lookup, text);
            // "assis" is of four verbs, and all four cannot be among three.
            const bool right = isAmongFirst(readings, row.verb) || verbsIn(readings) > kFirst;
            note(outcome, right && namesRow(readings, row), text, readings);
        }
    }
    return outcome;
}

Outcome checkTypos(platform::Database& database, lookup::Lookup& lookup, std::size_t count,
                   std::uint32_t seed)
{
    constexpr std::size_t kShortest = 5;

    const auto infinitives =
        rowsOf(database, "type = 'infinitif' AND instr(verb, ' ') = 0 AND instr(verb, '''') = 0");
    std::mt19937 random{seed};
    Outcome outcome;
    while (outcome.asked < count && !infinitives.empty()) {
        const auto& row = infinitives[random() % infinitives.size()];
        const auto letters = text::characters(row.form);
        if (letters.size() < kShortest) {
            continue;
        }
        const auto text = withTypo(letters, random);
        const auto readings = readingsOf(database, lookup, text);
        note(outcome, isAmongFirst(readings, row.verb), row.form + " as " + text, readings);
    }
    return outcome;
}

Outcome checkOthers(platform::Database& database, lookup::Lookup& lookup)
{
    const std::string others[] = {"",
                                  " ",
                                  "qwx",
                                  "bonjour",
                                  "merci",
                                  "maison",
                                  "salut",
                                  "12345",
                                  "3,14",
                                  "'",
                                  "-",
                                  "()",
                                  "que",
                                  "je",
                                  "ils",
                                  "%",
                                  "_____",
                                  "' OR 1=1; --",
                                  "\u4F60\u597D",
                                  "\U0001F600",
                                  std::string(10000, 'a'),
                                  std::string(900, 'e'),
                                  std::string(600, '-'),
                                  std::string("\xFF\xFE\x00", 3)};
    Outcome outcome;
    for (const auto& text : others) {
        const auto readings = readingsOf(database, lookup, text);
        note(outcome, readings.empty(), text, readings);
    }
    return outcome;
}

} // namespace lumora::lookups
