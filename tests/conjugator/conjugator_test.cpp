// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "conjugator/conjugator.h"

#include "conjugator/text_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace lumora::conjugator {
namespace {

const Conjugator& conjugator()
{
    static const Conjugator shared(ModelTable(TextTable::read(
        std::filesystem::path(LUMORA_CONTENT_DIR) / "models.tsv", ModelTable::header())));
    return shared;
}

/// A verb of a model, with words for its auxiliary and what else is special.
VerbEntry verb(std::string infinitive, std::string model, std::string_view traits = "-")
{
    VerbEntry entry;
    entry.infinitive = std::move(infinitive);
    entry.model = std::move(model);
    for (const auto& trait : split(traits, " ")) {
        entry.auxiliary = trait == "être"         ? Auxiliary::Etre
                          : trait == "être+avoir" ? Auxiliary::EtreThenAvoir
                          : trait == "avoir+être" ? Auxiliary::AvoirThenEtre
                                                  : entry.auxiliary;
        entry.aspirated |= trait == "aspirated";
        entry.impersonal |= trait == "impersonal";
        entry.pronominal |= trait == "pronominal";
        entry.plural |= trait == "plural";
        entry.en |= trait == "en";
        entry.invariableParticiple |= trait == "invariable";
        entry.indirectPronoun |= trait == "indirect";
    }
    return entry;
}

/// The shown forms of a pronoun in a tense, divided by " | "; those of all
/// pronouns ("*") with their pronouns.
std::string shown(const VerbEntry& entry, std::string_view tense, const std::string& pronoun)
{
    std::string text;
    for (const auto& row : conjugator().rows(entry)) {
        if (row.shown && name(row.tense) == tense && (pronoun == "*" || pronoun == row.pronoun)) {
            const bool bare = pronoun != "*" || row.pronoun.empty();
            text += (text.empty() ? "" : " | ") + (bare ? "" : row.pronoun) +
                    (bare || row.pronoun.ends_with('\'') ? "" : " ") + row.verb;
        }
    }
    return text;
}

/// The forms that are there for the search alone.
std::vector<std::string> searched(const VerbEntry& entry)
{
    std::vector<std::string> verbs;
    for (const auto& row : conjugator().rows(entry)) {
        if (!row.shown) {
            verbs.push_back(row.verb);
        }
    }
    return verbs;
}

TEST(Conjugator, FormsWhatTheGrammarsGive)
{
    const auto table = TextTable::read(
        LUMORA_FORMS, {"infinitive", "model", "traits", "tense", "pronoun", "forms"});
    for (const auto& record : table.records()) {
        SCOPED_TRACE("forms.tsv:" + std::to_string(record.line));
        const auto& fields = record.fields;
        ASSERT_THAT(kTenseNames, testing::Contains(fields[3]));
        const auto forms = shown(verb(fields[0], fields[1], fields[2]), fields[3], fields[4]);
        EXPECT_EQ(forms.empty() ? "-" : forms, fields[5]);
    }
    EXPECT_GT(table.records().size(), 200U);
}

TEST(Conjugator, FilesPronominalVerbsUnderTheirInfinitives)
{
    EXPECT_EQ(conjugator().headword(verb("évanouir", "finir", "pronominal")), "évanouir (s')");
    EXPECT_EQ(conjugator().headword(verb("méfier", "aimer", "pronominal")), "méfier (se)");
    EXPECT_EQ(conjugator().headword(verb("aller", "aller", "pronominal en")), "aller (s'en)");
}

/// Agreements, the other auxiliary, single variants and the spelling of 1990.
TEST(Conjugator, KeepsWhatIsNotShownForTheSearch)
{
    const struct {
        VerbEntry entry;
        std::vector<std::string> found;
        std::vector<std::string> missing;
    } cases[] = {
        {verb("aller", "aller", "être"),
         {"suis allé", "suis allée", "sommes allés", "sommes allées", "êtes allé", "êtes allée",
          "êtes allés", "êtes allées", "soyons allées", "être allées", "étant allés"},
         {"suis allés", "sommes allé"}},
        {verb("méprendre", "prendre", "être pronominal"), {"soyons mépris", "soyons méprises"}, {}},
        {verb("évanouir", "finir", "être pronominal"), {"s'évanouir"}, {}},
        {verb("monter", "aimer", "être+avoir"),
         {"ai monté", "aurions monté", "ayant monté", "avoir monté", "suis montée"},
         {}},
        {verb("absoudre", "absoudre"), {"ai absout"}, {}},
        {verb("payer", "payer"), {"paie", "paye", "paierai", "payerai"}, {}},
        {verb("entraîner", "aimer"), {"entraine", "avoir entrainé"}, {}},
        {verb("brûler", "aimer"), {"brulâmes"}, {}},
        {verb("mûrir", "finir"), {"murîmes"}, {"murimes"}},
        {verb("jeûner", "aimer"), {}, {"jeune"}},
        {verb("connaître", "connaître"), {"connaitrons"}, {}},
        {verb("croître", "croître"), {}, {"croit"}},
        {verb("œuvrer", "aimer", "invariable"),
         {"oeuvrer", "oeuvrions", "ai oeuvré", "ayant oeuvré"},
         {"œuvrions"}},
        {verb("désœuvrer", "aimer", "être pronominal"),
         {"se désoeuvrer", "étions désoeuvrées", "s'être désoeuvrés"},
         {"étions désœuvré"}},
        {verb("ficher", "ficher", "être pronominal"),
         {"se ficher", "se fiche", "sont fichues"},
         {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.entry.infinitive);
        const auto words = searched(c.entry);
        EXPECT_THAT(words, testing::IsSupersetOf(c.found));
        for (const auto& word : c.missing) {
            EXPECT_THAT(words, testing::Not(testing::Contains(word)));
        }
    }
    EXPECT_THAT(searched(verb("parler", "aimer")), testing::IsEmpty());
}

TEST(Conjugator, FilesShownRowsByTenseBeforeTheOthers)
{
    const auto rows = conjugator().rows(verb("monter", "aimer", "être+avoir"));

    EXPECT_TRUE(
        std::is_partitioned(rows.begin(), rows.end(), [](const Row& row) { return row.shown; }));
    const auto end =
        std::partition_point(rows.begin(), rows.end(), [](const Row& row) { return row.shown; });
    EXPECT_TRUE(std::is_sorted(rows.begin(), end,
                               [](const Row& a, const Row& b) { return a.tense < b.tense; }));
    EXPECT_TRUE(std::is_sorted(kTenseNames.begin(), kTenseNames.end()));
}

} // namespace
} // namespace lumora::conjugator
