// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/verb_facts.h"

#include "data/form_parts.h"
#include "data/homographs.h"
#include "platform/storage/database_queue.h"
#include "support/stock_sqlite.h"
#include "support/world.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace lumora::data {
namespace {

using testing::ElementsAre;
using Kind = FormParts::Kind;

std::int64_t idOf(const std::string& french)
{
    const auto ids = support::joinedRows(
        LUMORA_VERBS_DB, "SELECT min(_id) FROM verb WHERE french = '" + french + "'");
    return std::stoll(ids.at(0));
}

FormDivisions divisionsOf(std::int64_t verbId)
{
    const auto queue = platform::DatabaseQueue::open(LUMORA_VERBS_DB);
    platform::Result<FormDivisions> read;
    queue->inDatabase(
        [&](platform::Database& database) { read = readFormDivisions(database, verbId); });
    EXPECT_TRUE(read.has_value());
    return *read;
}

/// "parl|e", and "*" behind a changed stem; nothing of a compound form.
std::string cut(const Conjugation& row, const FormDivisions& divisions)
{
    std::string text;
    for (const auto& part : divisions.parts(row)) {
        if (part.kind == Kind::Compound) {
            continue;
        }
        text += text.empty() ? "" : ", ";
        text += part.kind == Kind::Irregular
                    ? part.text()
                    : part.stem + "|" + part.ending + (part.kind == Kind::Regular ? "" : "*");
    }
    return text;
}

TEST(FormParts, AreCutAsTeachersCutThem)
{
    const struct {
        const char* verb;
        const char* tense;
        /// Those of the simple forms.
        const char* forms;
    } cases[] = {
        {"parler", "indicatifPresent", "parl|e parl|es parl|e parl|ons parl|ez parl|ent"},
        {"parler", "indicatifFuturSimple",
         "parler|ai parler|as parler|a parler|ons parler|ez parler|ont"},
        {"parler", "participe", "parl|ant parl|é parl|ée parl|és parl|ées"},
        {"manger", "indicatifImparfait",
         "mange|ais* mange|ais* mange|ait* mang|ions mang|iez mange|aient*"},
        {"placer", "indicatifPasseSimple",
         "plaç|ai* plaç|as* plaç|a* plaç|âmes* plaç|âtes* plac|èrent"},
        {"acheter", "indicatifPresent",
         "achèt|e* achèt|es* achèt|e* achet|ons achet|ez achèt|ent*"},
        {"payer", "imperatif", "pai|e*, pay|e pay|ons pay|ez"},
        {"finir", "indicatifPresent", "fin|is fin|is fin|it fin|issons fin|issez fin|issent"},
        {"finir", "subjonctifImparfait",
         "fin|isse fin|isses fin|ît fin|issions fin|issiez fin|issent"},
        {"haïr", "indicatifPresent", "ha|is ha|is ha|it ha|ïssons ha|ïssez ha|ïssent"},
        {"venir", "indicatifPresent", "vien|s* vien|s* vien|t* ven|ons ven|ez vienn|ent*"},
        {"venir", "conditionnelPresent",
         "viendr|ais* viendr|ais* viendr|ait* viendr|ions* viendr|iez* viendr|aient*"},
        {"venir", "indicatifPasseSimple", "v|ins* v|ins* v|int* v|înmes* v|întes* v|inrent*"},
        {"rendre", "indicatifPresent", "rend|s rend|s rend| rend|ons rend|ez rend|ent"},
        {"rendre", "indicatifFuturSimple",
         "rendr|ai rendr|as rendr|a rendr|ons rendr|ez rendr|ont"},
        {"prendre", "participe", "pren|ant* pr|is* pr|ise* pr|is* pr|ises*"},
        {"pouvoir", "indicatifPresent", "peu|x*, pui|s* peu|x* peu|t* pouv|ons pouv|ez peuv|ent*"},
        {"connaître", "indicatifFuturSimple",
         "connaîtr|ai, connaitr|ai connaîtr|as, connaitr|as connaîtr|a, connaitr|a "
         "connaîtr|ons, connaitr|ons connaîtr|ez, connaitr|ez connaîtr|ont, connaitr|ont"},
        {"faire", "indicatifPresent", "fai|s fai|s fai|t fais|ons* faites font"},
        {"aller", "indicatifPresent", "vais vas va all|ons all|ez vont"},
        {"avoir", "subjonctifPresent", "ai|e* ai|es* ai|t* ay|ons* ay|ez* ai|ent*"},
        {"méfier (se)", "imperatif", "méfi|e-toi méfi|ons-nous méfi|ez-vous"},
        {"méfier (se)", "participe", "se méfi|ant méfi|é méfi|ée méfi|és méfi|ées"},
        {"évanouir (s'')", "infinitif", "s'évanou|ir"},
        {"asseoir", "infinitif", "ass|eoir, ass|oir"},
    };
    for (const auto& c : cases) {
        const auto id = idOf(c.verb);
        const auto divisions = divisionsOf(id);
        std::string forms;
        support::forEachRow(
            LUMORA_VERBS_DB,
            "SELECT verb, conj_order FROM conjugation WHERE display = 1 AND "
            "verbid = " +
                std::to_string(id) + " AND type = '" + c.tense + "' ORDER BY conj_order",
            [&](const support::Row& row) {
                const auto text = cut({"", row[0], c.tense, std::stoll(row[1])}, divisions);
                forms += forms.empty() || text.empty() ? text : " " + text;
            });
        EXPECT_EQ(forms, c.forms) << c.verb << " " << c.tense;
    }
}

TEST(FormParts, JoinToEveryShownFormAndLeaveOnlyAFewVerbsUncut)
{
    std::set<std::string> irregular;
    std::size_t compounds = 0;
    FormDivisions divisions;
    support::forEachRow(
        LUMORA_VERBS_DB,
        "SELECT verbid, conjugation.verb, type, conj_order, model FROM conjugation JOIN "
        "verb_facts USING (verbid) JOIN form_divisions ON form_divisions._id = divisionsid "
        "WHERE display = 1 ORDER BY verbid, conj_order",
        [&](const support::Row& row) {
            if (row[3] == "1") {
                divisions = divisionsOf(std::stoll(row[0]));
            }
            std::string joined;
            for (const auto& part : divisions.parts({"", row[1], row[2], std::stoll(row[3])})) {
                joined += (joined.empty() ? "" : ", ") + part.text();
                compounds += part.kind == Kind::Compound ? 1 : 0;
                if (part.kind == Kind::Irregular) {
                    irregular.insert(row[4]);
                }
            }
            EXPECT_EQ(joined, row[1]) << row[0];
        });
    EXPECT_THAT(irregular, ElementsAre("aller", "avoir", "dire", "faire", "être"));
    EXPECT_GT(compounds, 300000U);
}

TEST(FormParts, SurviveDivisionsThatDoNotFit)
{
    const Conjugation row{"", "née, nue", "participe", 1};
    const std::pair<std::string, std::vector<Kind>> cases[] = {
        {"", {Kind::Irregular, Kind::Irregular}},
        {"\x06", {Kind::Regular, Kind::Irregular}},
        {"\x08\x07", {Kind::Irregular, Kind::ChangedStem}},
        {"\x01\xff", {Kind::Irregular, Kind::Irregular}},
    };
    for (const auto& [packed, kinds] : cases) {
        const auto parts = FormDivisions{packed}.parts(row);
        ASSERT_EQ(parts.size(), 2U);
        for (std::size_t i = 0; i < kinds.size(); ++i) {
            EXPECT_EQ(parts[i].kind, kinds[i]) << testing::PrintToString(packed) << " " << i;
            EXPECT_EQ(parts[i].text(), i == 0 ? "née" : "nue");
        }
    }
}

TEST(VerbFacts, TellOfEveryVerbWhatTheTablesSay)
{
    const auto queue = platform::DatabaseQueue::open(LUMORA_VERBS_DB);
    const auto factsOf = [&](std::int64_t id) {
        platform::Result<std::optional<VerbFacts>> facts;
        queue->inDatabase(
            [&](platform::Database& database) { facts = readVerbFacts(database, id); });
        EXPECT_TRUE(facts.has_value());
        return *facts;
    };
    const auto faint = factsOf(idOf("évanouir (s'')"));
    ASSERT_TRUE(faint);
    EXPECT_EQ(faint->group, 2);
    EXPECT_EQ(faint->model, "finir");
    ASSERT_TRUE(faint->like);
    EXPECT_EQ(faint->like->french, "finir");
    EXPECT_EQ(faint->like->id, idOf("finir"));
    EXPECT_THAT(faint->auxiliaries, ElementsAre("être"));
    EXPECT_THAT(faint->traits, ElementsAre("pronominal"));
    EXPECT_FALSE(factsOf(idOf("finir"))->like);
    EXPECT_THAT(factsOf(idOf("apparaître"))->auxiliaries, ElementsAre("être", "avoir"));
    EXPECT_THAT(factsOf(idOf("falloir"))->traits, ElementsAre("impersonal", "defective"));
    EXPECT_THAT(factsOf(idOf("falloir"))->participle, ElementsAre("invariable"));
    EXPECT_FALSE(factsOf(-1));

    const std::pair<const char*, int> groups[] = {
        {"envoyer", 1}, {"aller", 3}, {"maudire", 3}, {"haïr", 2}, {"partir", 3}, {"naître", 3},
    };
    for (const auto& [verb, group] : groups) {
        EXPECT_EQ(factsOf(idOf(verb))->group, group) << verb;
    }
    EXPECT_THAT(support::joinedRows(
                    LUMORA_VERBS_DB,
                    "SELECT _id FROM verb WHERE _id NOT IN (SELECT verbid FROM verb_facts JOIN "
                    "form_divisions ON form_divisions._id = divisionsid WHERE verb_group BETWEEN "
                    "1 AND 3 AND use_class BETWEEN 1 AND 5 AND model <> '')"),
                testing::IsEmpty());
}

TEST(VerbFacts, TellHomographsApartAndTheCommonerFirst)
{
    const support::World world;
    for (const char* sql : {
             "INSERT INTO verb(_id, french) VALUES (7, 'ressortir'), (8, 'ressortir'),"
             " (9, 'ressortir'), (10, 'monter')",
             "INSERT INTO verb_facts(verbid, model, auxiliary, use_class) VALUES"
             " (7, 'finir', 'avoir', 5), (8, 'sentir', 'être+avoir', 4), (9, 'sentir', 'avoir', 3),"
             " (10, 'aimer', 'être', 1), (3, 'aller', 'être', 1)",
         }) {
        support::executeOn(*world.queue, sql);
    }
    std::vector<VerbPtr> verbs;
    for (const auto& [id, french] : {std::pair{7, "ressortir"},
                                     {8, "ressortir"},
                                     {9, "ressortir"},
                                     {10, "monter"},
                                     {3, "aller"},
                                     {1, "avoir"}}) {
        verbs.push_back(std::make_shared<Verb>());
        verbs.back()->id = id;
        verbs.back()->french = french;
    }
    std::vector<std::string> texts;
    world.queue->inDatabase([&](platform::Database& database) {
        EXPECT_TRUE(distinguishHomographs(database, verbs));
        for (const auto& verb : verbs) {
            texts.push_back(verb->distinction);
        }
        EXPECT_TRUE(putCommonestFirst(database, verbs));
    });
    EXPECT_THAT(texts, ElementsAre("avoir, finir", "être, avoir", "avoir, sentir", "", "", ""));
    std::vector<std::int64_t> ids;
    for (const auto& verb : verbs) {
        ids.push_back(verb->id);
    }
    EXPECT_THAT(ids, ElementsAre(10, 3, 9, 8, 7, 1));
}

TEST(VerbFacts, AreAnErrorWithoutTheTable)
{
    const support::World world;
    support::executeOn(*world.queue, "DROP TABLE verb_facts");
    world.queue->inDatabase([](platform::Database& database) {
        std::vector<VerbPtr> verbs{std::make_shared<Verb>()};
        EXPECT_FALSE(readVerbFacts(database, 3));
        EXPECT_FALSE(readFormDivisions(database, 3));
        EXPECT_FALSE(distinguishHomographs(database, verbs));
        EXPECT_FALSE(putCommonestFirst(database, verbs));
        EXPECT_TRUE(verbs[0]);
    });
}

} // namespace
} // namespace lumora::data
