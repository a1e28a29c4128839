// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "conjugator/grammar.h"
#include "conjugator/text_table.h"
#include "support/stock_sqlite.h"
#include "text/text.h"
#include "verbdb/content.h"
#include "verbdb/simplify.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lumora::verbdb {
namespace {

using support::Row;

/// Visits rows of the database that ships, of which there must be some.
void forEachRow(const char* sql, const std::function<void(const Row&)>& visit)
{
    bool any = false;
    support::forEachRow(LUMORA_VERBS_DB, sql, [&](const Row& row) {
        any = true;
        visit(row);
    });
    EXPECT_TRUE(any) << sql;
}

TEST(ShippedDatabase, HasOnlyFormsOfKnownTensesWithText)
{
    std::string types;
    for (const auto name : conjugator::kTenseNames) {
        types += (types.empty() ? "'" : ", '") + std::string(name) + "'";
    }
    const std::string none[] = {
        "SELECT verbid, type FROM conjugation WHERE type NOT IN (" + types + ")",
        "SELECT verbid, type FROM conjugation WHERE trim(verb) <> verb OR verb = ''",
        "SELECT verbid, verb FROM conjugation WHERE verb LIKE '%,%' AND display = 0",
        "SELECT verbid FROM conjugation WHERE verbid NOT IN (SELECT _id FROM verb)",
        R"(SELECT _id FROM verb WHERE _id NOT IN
           (SELECT verbid FROM conjugation WHERE type = 'infinitif' AND display = 1))",
        "SELECT verbid FROM conjugation WHERE display NOT IN (0, 1)",
        R"(SELECT a.verbid, a.conj_order FROM conjugation a JOIN conjugation b ON
           b.verbid = a.verbid AND b.conj_order = a.conj_order + 1 WHERE a.display < b.display)",
        R"(SELECT verbid FROM conjugation GROUP BY verbid
           HAVING count(DISTINCT conj_order) <> count(*))",
        R"(SELECT verbid, pronoun FROM conjugation
           WHERE (pronoun = '') <> (type IN ('imperatif', 'infinitif', 'participe')))",
    };
    for (const auto& sql : none) {
        EXPECT_EQ(support::joinedRows(LUMORA_VERBS_DB, sql), std::vector<std::string>{}) << sql;
    }
}

/// The ids of the verbs that the tables describe so, as the database has them.
std::set<std::string> idsOf(bool (*isSo)(const conjugator::VerbEntry&))
{
    std::set<std::string> ids;
    for (const auto& verb : readContent(LUMORA_CONTENT_DIR).verbs) {
        if (isSo(verb.entry)) {
            ids.insert(std::to_string(verb.id));
        }
    }
    return ids;
}

/// "que j'" and "je me" are je; the impersonal il is il/elle/on.
std::size_t personOf(std::string pronoun)
{
    constexpr std::array<std::string_view, 6> subjects{"j",    "tu",   "il",
                                                       "nous", "vous", "ils/elles"};
    if (pronoun.starts_with("qu")) {
        pronoun = pronoun.substr(pronoun.find_first_of(" '") + 1);
    }
    for (std::size_t person = subjects.size(); person-- > 0;) {
        if (pronoun.starts_with(subjects[person])) {
            return person;
        }
    }
    ADD_FAILURE() << pronoun;
    return 0;
}

TEST(ShippedDatabase, GivesEachTenseItsPersonsInOrder)
{
    std::map<std::pair<std::string, std::string>, std::vector<std::size_t>> personsOf;
    forEachRow("SELECT verbid, type, pronoun FROM conjugation WHERE display = 1 AND pronoun <> ''"
               " ORDER BY verbid, conj_order",
               [&](const Row& row) {
                   personsOf[{row[0], row[1]}].push_back(personOf(row[2]));
               });

    constexpr std::size_t kPersonalTenses = 15;
    const std::vector<std::size_t> all{0, 1, 2, 3, 4, 5};
    std::map<std::string, std::size_t> fullTenses;
    for (const auto& [tense, persons] : personsOf) {
        EXPECT_TRUE(std::is_sorted(persons.begin(), persons.end(), std::less_equal<>()))
            << tense.first << " " << tense.second;
        fullTenses[tense.first] += persons == all ? 1 : 0;
    }
    for (const auto& id : idsOf([](const conjugator::VerbEntry& verb) {
             return !verb.defective && !verb.impersonal;
         })) {
        EXPECT_EQ(fullTenses[id], kPersonalTenses)
            << id << " lacks forms and is not marked defective";
    }
}

TEST(ShippedDatabase, MakesCompoundFormsOfAuxiliaryAndAgreeingParticiple)
{
    Row compounds;
    forEachRow("SELECT type, conjugation.verb FROM conjugation JOIN verb ON verb._id = verbid"
               " WHERE french = 'partir' AND pronoun LIKE '%nous' AND display = 1 AND"
               " conjugation.verb LIKE '% %' ORDER BY type",
               [&](const Row& row) { compounds.push_back(row[0] + " " + row[1]); });
    EXPECT_EQ(
        compounds,
        (Row{"conditionnelPasse1reForme serions parti(e)s",
             "conditionnelPasse2eForme fussions parti(e)s",
             "indicatifFuturAnterieur serons parti(e)s", "indicatifPasseAnterieur fûmes parti(e)s",
             "indicatifPasseCompose sommes parti(e)s", "indicatifPlusQueParfait étions parti(e)s",
             "subjonctifPasse soyons parti(e)s", "subjonctifPlusqueParfait fussions parti(e)s"}));

    forEachRow("SELECT auxiliary, verb FROM conjugation JOIN verb_facts USING (verbid) WHERE"
               " type = 'indicatifPasseCompose' AND pronoun LIKE 'il%' AND pronoun NOT LIKE"
               " 'ils%' AND display = 1",
               [](const Row& row) {
                   const bool etre = row[0].starts_with("être");
                   const bool both = row[0].find('+') != std::string::npos;
                   const auto second = row[1].find(etre ? ", a " : ", est ");
                   EXPECT_TRUE(row[1].starts_with(etre ? "est " : "a ")) << row[1];
                   EXPECT_EQ(both, second != std::string::npos) << row[1];
                   EXPECT_TRUE(etre || both || row[1].find('(') == std::string::npos) << row[1];
               });
}

TEST(ShippedDatabase, HasThePronominalVerbsThatPeopleSay)
{
    const auto table =
        conjugator::TextTable::read(LUMORA_FROZEN_CONTENT_DIR "/../pronominal_forms.tsv",
                                    {"headword", "tense", "pronoun", "forms"});
    std::set<std::string> headwords;
    for (const auto& record : table.records()) {
        SCOPED_TRACE("pronominal_forms.tsv:" + std::to_string(record.line));
        const auto& fields = record.fields;
        headwords.insert(fields[0]);
        std::string forms;
        support::forEachRow(
            LUMORA_VERBS_DB,
            "SELECT type, pronoun, conjugation.verb FROM conjugation JOIN verb ON verb._id = verbid"
            " WHERE display = 1 AND french = ? ORDER BY verbid, conj_order",
            [&](const Row& row) {
                if (row[0] == fields[1] && (fields[2] == "*" || fields[2] == row[1])) {
                    forms += (forms.empty() ? "" : " | ") + row[2];
                }
            },
            fields[0]);
        EXPECT_EQ(forms, fields[3]) << fields[0];
    }
    EXPECT_GE(headwords.size(), 60U);
}

TEST(ShippedDatabase, ElidesBeforeVowelsAndMuteHOnly)
{
    const auto aspirated = idsOf([](const conjugator::VerbEntry& verb) { return verb.aspirated; });
    constexpr std::string_view kVowels = "aeiou";
    forEachRow("SELECT verbid, pronoun, verb FROM conjugation WHERE display = 1 AND"
               " (pronoun LIKE '%j%' OR pronoun LIKE 'tu t%') AND pronoun NOT LIKE '%en'",
               [&](const Row& row) {
                   // A simple form has no blank but behind the comma of a variant.
                   const auto blank = row[2].find(' ');
                   const bool compound = blank != std::string::npos && row[2][blank - 1] != ',';
                   const auto plain = simplified(row[2]);
                   const bool vowel = kVowels.find(plain[0]) != std::string_view::npos ||
                                      plain[0] == 'h' ||
                                      (plain[0] == 'y' && plain.size() > 1 &&
                                       kVowels.find(plain[1]) == std::string_view::npos);
                   const bool elides = vowel && (compound || !aspirated.contains(row[0]));
                   if (row[1].ends_with("'") != elides) {
                       ADD_FAILURE() << row[1] << " | " << row[2];
                   }
               });
}

TEST(ShippedDatabase, FoldsEveryHeadwordAndTranslation)
{
    forEachRow("SELECT french, simplified_french, german, simplified_german, dutch,"
               " simplified_dutch, spanish, simplified_spanish, italian, simplified_italian,"
               " portuguese, simplified_portuguese FROM verb",
               [](const Row& row) {
                   for (std::size_t i = 0; i < row.size(); i += 2) {
                       EXPECT_EQ(row[i + 1], simplified(row[i]));
                       EXPECT_EQ(row[i + 1].find_first_not_of("abcdefghijklmnopqrstuvwxyz -,'"),
                                 std::string::npos)
                           << row[i + 1];
                   }
               });
}

TEST(ShippedDatabase, HasComposedTextWithPlainApostrophes)
{
    const auto check = [&](const Row& row) {
        for (const auto& text : row) {
            if (!text::isComposed(text) || text.find("\u2019") != std::string::npos) {
                ADD_FAILURE() << text;
            }
        }
    };
    forEachRow("SELECT french, english, german, dutch, spanish, italian, portuguese FROM verb",
               check);
    forEachRow("SELECT DISTINCT verb FROM conjugation", check);
}

} // namespace
} // namespace lumora::verbdb
