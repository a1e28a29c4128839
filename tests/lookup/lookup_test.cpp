// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/lookup.h"

#include "lookups/lookup_check.h"
#include "platform/storage/database_queue.h"
#include "support/statements.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lumora::lookup {
namespace {

using testing::ElementsAreArray;
using testing::IsEmpty;

/// The shipped database, read once for all tests.
class LookupTest : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        queue = platform::DatabaseQueue::open(LUMORA_VERBS_DB);
        lookup = std::make_unique<Lookup>();
    }
    static void TearDownTestSuite()
    {
        lookup.reset();
        queue.reset();
    }

    static std::vector<Reading> read(std::string_view text, std::string_view language = "en",
                                     Guesses guesses = Guesses::Allowed)
    {
        std::vector<Reading> readings;
        queue->inDatabase([&](platform::Database& database) {
            readings = lookup->read(database, text, language, guesses).value();
        });
        return readings;
    }

    /// "aller irions phrase: conditionnelPresent nous, …" of the first reading.
    static std::string first(std::string_view text)
    {
        const auto readings = read(text);
        if (readings.empty()) {
            return "";
        }
        const auto& reading = readings.front();
        auto told = reading.headword + " " + reading.form + " " + std::string{nameOf(reading.kind)};
        for (const auto& place : reading.places) {
            told += (&place == &reading.places.front() ? ": " : ", ") + place.tense;
            told += (place.pronoun.empty() ? "" : " ") + place.pronoun;
        }
        return told;
    }

    static inline std::unique_ptr<platform::DatabaseQueue> queue;
    static inline std::unique_ptr<Lookup> lookup;
};

TEST_F(LookupTest, TakesATextForTheFormThatIsMeant)
{
    const struct {
        const char* text;
        const char* reading;
    } cases[] = {
        {"irions", "aller irions exact: conditionnelPresent nous"},
        {"aller ", "aller aller folded: infinitif"},
        {"Être", "être être folded: infinitif"},
        {"IRIONS", "aller irions folded: conditionnelPresent nous"},
        {"parle", "parler parle exact: indicatifPresent je, indicatifPresent il/elle/on, "
                  "imperatif, subjonctifPresent que je, subjonctifPresent qu'il/elle/on"},
        {"évanouir (s')", "évanouir (s') évanouir exact: infinitif"},
        {"s\u2019evanouir", "évanouir (s') évanouir folded: infinitif"},
        {"laver se", "laver (se) laver phrase: infinitif"},
        {"je parle", "parler parle phrase: indicatifPresent je"},
        {"que je parle", "parler parle phrase: subjonctifPresent que je"},
        {"que j\u2019aille", "aller aille phrase: subjonctifPresent que j'"},
        {"il eût mangé", "manger eût mangé phrase: conditionnelPasse2eForme il/elle/on"},
        {"se lave", "laver (se) lave phrase: indicatifPresent il/elle/on se, subjonctifPresent "
                    "qu'il/elle/on se"},
        {"s'il mange", "manger mange phrase: indicatifPresent il/elle/on"},
        {"j'irai", "aller irai phrase: indicatifFuturSimple j'"},
        {"qu'elles aillent", "aller aillent phrase: subjonctifPresent qu'ils/elles"},
        {"me lave", "laver (se) lave phrase: indicatifPresent je me"},
        {"elles sont venues", "venir sont venues phrase: indicatifPasseCompose ils/elles"},
        {"sommes allées", "aller sommes allées phrase: indicatifPasseCompose nous"},
        {"je ne suis pas allé(e)", "aller suis allé phrase: indicatifPasseCompose je"},
        {"elle s'est évanouie",
         "évanouir (s') est évanouie phrase: indicatifPasseCompose il/elle/on s'"},
        {"n'a-t-il pas mangé", "manger a mangé phrase: indicatifPasseCompose il/elle/on"},
        {"mange-t-il", "manger mange phrase: indicatifPresent il/elle/on"},
        {"puis-je", "pouvoir puis phrase: indicatifPresent je"},
        {"n'allons pas", "aller allons phrase: indicatifPresent nous, imperatif"},
        {"va-t'en", "aller (s'en) va exact: imperatif"},
        {"va\u2010t\u2019en !", "aller (s'en) va folded: imperatif"},
        {"vas-y", "aller va phrase: imperatif"},
        {"allez-y", "aller allez phrase: imperatif"},
        {"appelle-toi", "appeler (s') appelle exact: imperatif"},
        {"to go", "aller aller meaning: infinitif"},
        {"apeller", "appeler appeler slip: infinitif"},
        {"acceuillir", "accueillir accueillir slip: infinitif"},
        {"recontrer", "rencontrer rencontrer slip: infinitif"},
        {"ils sont aller", "aller sont allés slip: indicatifPasseCompose ils/elles"},
        {"avoir eté", "être avoir été folded: infinitif"},
        {"je mangais", "manger mangeais slip: indicatifImparfait je"},
        {"nous mangons", "manger mangeons slip: indicatifPresent nous"},
        {"je fesais", "faire faisais sound: indicatifImparfait je"},
        {"il fesait", "faire faisait sound: indicatifImparfait il/elle/on"},
        {"ils croivent", "croire croient slip: indicatifPresent ils/elles"},
        {"vous faisez", "faire faisiez slip: indicatifImparfait vous"},
        {"il fo", "falloir faut sound: indicatifPresent il"},
        {"ils mangé", "manger mangeaient sound: indicatifImparfait ils/elles"},
        {"Le chat a mangé la souris.", "manger a mangé inside: indicatifPasseCompose il/elle/on"},
        {"Demain, nous irons à Paris", "aller irons inside: indicatifFuturSimple nous"},
        {"pique-niquons", "pique-niquer pique-niquons exact: indicatifPresent nous, imperatif"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(first(c.text), c.reading) << c.text;
    }
}

TEST_F(LookupTest, PutsTheCommonVerbFirst)
{
    const struct {
        const char* text;
        std::vector<std::string> verbs;
    } cases[] = {
        {"suis", {"être", "suivre"}},
        {"irions", {"aller"}},
        {"lavé", {"laver", "laver (se)"}},
        {"fut", {"être"}},
        {"vis", {"vivre", "voir"}},
        {"peut", {"pouvoir"}},
        {"a", {"avoir"}},
        {"je lave", {"laver"}},
        {"pêcher", {"pêcher"}},
    };
    for (const auto& c : cases) {
        std::vector<std::string> verbs;
        for (const auto& reading : read(c.text)) {
            verbs.push_back(reading.headword);
        }
        EXPECT_THAT(verbs, ElementsAreArray(c.verbs)) << c.text;
    }
    EXPECT_EQ(read("be").at(0).headword, "être");
    EXPECT_EQ(read("aufstehen", "de").at(0).kind, MatchKind::Meaning);
    EXPECT_THAT(read("go", "fr"), IsEmpty());
    for (const char* guess : {"apeller", "il fo", "le chat mange la souris"}) {
        EXPECT_THAT(read(guess, "en", Guesses::None), IsEmpty()) << guess;
    }
}

void expectAll(const lookups::Outcome& outcome, double part)
{
    const auto right = outcome.asked - outcome.wrong;
    EXPECT_GT(outcome.asked, 0U);
    EXPECT_GE(static_cast<double>(right), part * static_cast<double>(outcome.asked))
        << testing::PrintToString(outcome.failures);
}

TEST_F(LookupTest, KnowsARowAsOneSaysItAndAVerbBehindATypo)
{
    constexpr std::size_t kStride = 397;
    constexpr std::size_t kTypos = 300;

    queue->inDatabase([&](platform::Database& database) {
        expectAll(lookups::checkRows(database, *lookup, kStride), 1);
        expectAll(lookups::checkTypos(database, *lookup, kTypos, 7), 0.95);
        expectAll(lookups::checkOthers(database, *lookup), 1);
    });
}

TEST_F(LookupTest, FindsTheStoredWordsAndThoseOfTheFormsAlike)
{
    queue->inDatabase([](platform::Database& database) {
        auto stored = Catalogue::read(database).value();
        stored.sounds(database);
        // Before the file's own table.
        ASSERT_TRUE(database.executeUpdate("CREATE TEMP TABLE word_index (_id, words)", {}));
        auto made = Catalogue::read(database).value();
        made.sounds(database);
        ASSERT_TRUE(database.executeUpdate("DROP TABLE temp.word_index", {}));
        EXPECT_TRUE(stored.words().packed() == made.words().packed());
        EXPECT_TRUE(stored.sounds(database) == made.sounds(database));
        EXPECT_GT(stored.words().size(), 200000U);
    });
}

TEST_F(LookupTest, KnowsAVerbByItsName)
{
    const struct {
        const char* name;
        std::vector<std::string> verbs;
    } cases[] = {
        {"aller", {"aller"}},
        {"s'en aller", {"aller (s'en)"}},
        {"Evanouir", {"évanouir (s')"}},
        {"se laver", {"laver (se)"}},
        {"laver", {"laver"}},
        {"s'aller", {}},
        {"irions", {}},
        {"", {}},
    };
    platform::Result<Catalogue> catalogue;
    queue->inDatabase([&](platform::Database& database) { catalogue = Catalogue::read(database); });
    for (const auto& c : cases) {
        std::vector<std::string> verbs;
        queue->inDatabase([&](platform::Database& database) {
            const auto ids = lookup->verbsNamed(database, c.name).value();
            for (const auto id : ids) {
                verbs.push_back(catalogue->verb(catalogue->numberOf(id)).headword);
            }
        });
        EXPECT_THAT(verbs, ElementsAreArray(c.verbs)) << c.name;
    }
}

TEST(LookupOfADamagedDatabase, IsAnErrorWithoutTheTables)
{
    const support::TemporaryFolder folder;
    const auto queue = platform::DatabaseQueue::open(platform::fileUrl(folder / "empty.db"));
    queue->inDatabase([](platform::Database& database) {
        EXPECT_FALSE(Lookup{}.read(database, "va", "en").has_value());
        EXPECT_FALSE(Lookup{}.verbsNamed(database, "va").has_value());
    });
}

} // namespace
} // namespace lumora::lookup
