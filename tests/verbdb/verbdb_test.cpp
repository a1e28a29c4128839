// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "verbdb/verbdb.h"

#include "support/stock_sqlite.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

namespace lumora::verbdb {
namespace {

namespace fs = std::filesystem;
using support::contentOf;
using support::writeContent;

/// A copy of the frozen tables, with the shipped models, in a folder of its own.
class Verbdb : public testing::Test {
protected:
    void SetUp() override
    {
        fs::copy(LUMORA_FROZEN_CONTENT_DIR, folder_.path());
        fs::copy(LUMORA_CONTENT_DIR "/models.tsv", folder_ / "models.tsv");
    }

    int build(const std::string& name, std::vector<std::string> arguments = {})
    {
        std::ostringstream output;
        std::ostringstream errors;
        arguments.insert(arguments.end(), {folder_.path().string(), (folder_ / name).string()});
        const int code = run(arguments, output, errors);
        errors_ = errors.str();
        return code;
    }

    /// The rows of a query, columns divided by "|".
    std::vector<std::string> query(const std::string& sql)
    {
        return support::joinedRows(folder_ / "verbs.db", sql);
    }

    support::TemporaryFolder folder_;
    std::string errors_;
};

using Rows = std::vector<std::string>;

TEST_F(Verbdb, WritesVerbsAndTheirForms)
{
    ASSERT_EQ(build("verbs.db"), 0) << errors_;

    EXPECT_EQ(query("SELECT count(*), min(_id), max(_id) FROM verb"), Rows{"20|1|41"});
    EXPECT_EQ(query("SELECT * FROM verb WHERE _id = 22"),
              Rows{"22|méfier (se)|mefier|distrust, be wary|misstrauen, hüten (sich)|misstrauen, "
                   "huten|wantrouwen, hoeden (zich)|wantrouwen, hoeden|desconfiar|desconfiar|"
                   "diffidare|diffidare|desconfiar|desconfiar"});
    EXPECT_EQ(query("SELECT pronoun, verb, display FROM conjugation WHERE verbid = 11 AND type = "
                    "'indicatifPresent' AND display = 1 ORDER BY conj_order"),
              (Rows{"je|paie, paye|1", "tu|paies, payes|1", "il/elle/on|paie, paye|1",
                    "nous|payons|1", "vous|payez|1", "ils/elles|paient, payent|1"}));
    EXPECT_EQ(query("SELECT verb FROM conjugation WHERE verbid = 11 AND display = 0 AND "
                    "length(verb) < 7 ORDER BY conj_order"),
              (Rows{"paie", "paye", "paiera", "payera", "paies", "payes", "paient", "payent"}))
        << "each once";
    EXPECT_EQ(query("SELECT verbid, verb FROM conjugation WHERE verbid >= 40 AND type = "
                    "'indicatifFuturSimple' AND pronoun LIKE 'il/elle%'"),
              (Rows{"40|saillera", "41|saillira"}));
    EXPECT_EQ(query("SELECT pronoun, verb FROM conjugation WHERE verbid = 23 AND conj_order = 1"),
              Rows{"j'|aurais haï"});
    EXPECT_EQ(query("SELECT count(*) = count(DISTINCT _id) FROM conjugation"), Rows{"1"});
}

TEST_F(Verbdb, MakesUpMoreVerbsThatConjugateLikeTheirModels)
{
    ASSERT_EQ(build("verbs.db", {"--times", "4"}), 0) << errors_;

    EXPECT_EQ(query("SELECT count(*), count(DISTINCT french) FROM verb"), Rows{"80|79"});
    EXPECT_EQ(query("SELECT conjugation.verb FROM conjugation JOIN verb ON verb._id = verbid WHERE "
                    "french = 'surmanger' AND type = 'indicatifPresent' AND pronoun = 'nous'"),
              Rows{"surmangeons"});

    for (const char* times : {"0", "17", "-1", "two", "2x", ""}) {
        EXPECT_EQ(build("verbs.db", {"--times", times}), 2) << times;
    }
}

TEST_F(Verbdb, KeepsTheColumnsOthersRelyOn)
{
    ASSERT_EQ(build("verbs.db"), 0) << errors_;

    const auto columns = [&](const std::string& table) {
        return query("SELECT group_concat(name) FROM pragma_table_xinfo('" + table + "')");
    };
    EXPECT_EQ(columns("verb"),
              Rows{"_id,french,simplified_french,english,german,simplified_german,dutch,"
                   "simplified_dutch,spanish,simplified_spanish,italian,simplified_italian,"
                   "portuguese,simplified_portuguese"});
    EXPECT_EQ(columns("conjugation"), Rows{"_id,verbid,pronoun,verb,type,conj_order,display"});
    EXPECT_EQ(columns("favourite"), Rows{"_id,verbid"});
    EXPECT_EQ(columns("history"), Rows{"_id,verbid,timestamp"});
    EXPECT_EQ(query("INSERT INTO history (verbid, timestamp) VALUES (1, 0.5) "
                    "RETURNING _id, timestamp"),
              Rows{"1|0.5"});
}

TEST_F(Verbdb, MakesTheSameBytesFromTheSameTables)
{
    ASSERT_EQ(build("first.db"), 0) << errors_;
    writeContent(folder_ / "second.db", "an older file is replaced");
    ASSERT_EQ(build("second.db"), 0) << errors_;

    EXPECT_GT(contentOf(folder_ / "first.db").size(), 100000U);
    EXPECT_TRUE(contentOf(folder_ / "first.db") == contentOf(folder_ / "second.db"));
}

TEST_F(Verbdb, RefusesABadTableAndLeavesNothingBehind)
{
    const auto sound = contentOf(folder_ / "verbs.tsv");
    const auto begin = sound.find("id\t");
    const auto head = sound.substr(begin, sound.find('\n', begin) + 1 - begin);
    const std::string line = "1|aimer|aimer|avoir|-|-|1|love|lieben|houden van|amar|amare|amar\n";
    const auto verbs = [&](std::string text) {
        std::replace(text.begin(), text.end(), '|', '\t');
        return head + text;
    };
    const auto with = [&](const std::string& old, const std::string& replacement) {
        auto text = line;
        return verbs(text.replace(text.find(old), old.size(), replacement));
    };
    const std::pair<std::string, const char*> cases[] = {
        {"", "verbs.tsv:1: the file is empty"},
        {head, "verbs.tsv:1: there are no verbs"},
        {line, "verbs.tsv:1: the header must be id, infinitive, model, auxiliary, traits, "
               "participle, use, english, german, dutch, spanish, italian, portuguese"},
        {with("|amar\n", "\n"), "verbs.tsv:2: expected 13 columns, found 12"},
        {verbs("\n"), "verbs.tsv:2: expected 13 columns, found 1"},
        {with("1|", "0|"), R"(verbs.tsv:2: the id "0" is not a positive whole number)"},
        {with("1|", "1a|"), R"(verbs.tsv:2: the id "1a" is not a positive whole number)"},
        {with("1|", "30|"), R"(verbs.tsv:2: the id 30 is retired; it was "parlir")"},
        {verbs("# loved\n" + line + line), "verbs.tsv:4: the id 1 stands already in line 3"},
        {verbs(line + "2" + line.substr(1)),
         R"(verbs.tsv:3: "aimer" with the same model and auxiliary stands already in line 2)"},
        {with("aimer|aimer", "aimer|amer"), R"(verbs.tsv:2: unknown model "amer")"},
        {with("aimer|aimer", "aimer|finir"),
         R"(verbs.tsv:2: "aimer" does not end in "ir" as model "finir" asks)"},
        {with("avoir", "etre"), R"(verbs.tsv:2: unknown auxiliary "etre")"},
        {with("|-|-|", "|silent|-|"), R"(verbs.tsv:2: unknown trait "silent")"},
        {with("|-|-|", "|pronominal|-|"), R"(verbs.tsv:2: a pronominal verb takes "être")"},
        {with("|-|-|", "|-|variable|"), R"(verbs.tsv:2: unknown participle "variable")"},
        {with("|-|-|", "|defective,defective|-|"), R"(verbs.tsv:2: "defective" stands twice)"},
        {with("|-|-|", "|-|invariable,indirect|"),
         R"(verbs.tsv:2: only a pronominal verb can be "indirect")"},
        {with("|-|-|", "|en|-|"), R"(verbs.tsv:2: only a pronominal verb can be "en")"},
        {with("|-|-|", "|plural|-|"), R"(verbs.tsv:2: only an impersonal verb can be "plural")"},
        {with("|1|love", "|6|love"), R"(verbs.tsv:2: the use "6" is not a class from 1 to 5)"},
        {with("|1|love", "|-|love"), R"(verbs.tsv:2: the use "-" is not a class from 1 to 5)"},
        {with("|love|", "|love (à, de), like (en), cherish (à), adore|"),
         "verbs.tsv:2: more than three senses in english"},
        {with("|love|", "|love (à|"), "verbs.tsv:2: the brackets in english are not in pairs"},
        {with("|love|", "|love) (à|"), "verbs.tsv:2: the brackets in english are not in pairs"},
        {with("|lieben|", "||"), "verbs.tsv:2: the german translation is missing"},
        {with("|amare|", "|-|"), "verbs.tsv:2: the italian translation is missing"},
        {with("|love|", "|love, like, cherish, adore|"),
         "verbs.tsv:2: more than three senses in english"},
        {with("|love|", "|love,like|"),
         R"(verbs.tsv:2: the english senses are not divided by ", ")"},
        {with("love", "love one\u2019s own"), "verbs.tsv:2: typographic apostrophe"},
        {with("|lieben|", "|u\u0308ben|"), "verbs.tsv:2: not composed Unicode (NFC)"},
        {with("|lieben|", "|\xfc"
                          "ben|"),
         "verbs.tsv:2: not valid UTF-8"},
    };
    for (const auto& [tables, refusal] : cases) {
        SCOPED_TRACE(refusal);
        writeContent(folder_ / "verbs.tsv", tables);
        EXPECT_EQ(build("verbs.db"), 1);
        EXPECT_EQ(errors_, folder_.path().string() + "/" + refusal + "\n");
    }
    EXPECT_EQ(std::distance(fs::directory_iterator(folder_.path()), {}), 3) << "only the tables";
}

TEST_F(Verbdb, KeepsTheOldFileWhenItCannotWrite)
{
    fs::create_directories(folder_ / "taken" / "inside");
    EXPECT_EQ(build("taken"), 1);
    EXPECT_TRUE(errors_.starts_with((folder_ / "taken").string() + ": ")) << errors_;
    EXPECT_FALSE(fs::exists(folder_ / "taken.part"));

    fs::remove(folder_ / "models.tsv");
    EXPECT_EQ(build("verbs.db"), 1);
    EXPECT_EQ(errors_, (folder_ / "models.tsv").string() + ":1: the file cannot be read\n");
}

TEST_F(Verbdb, AnswersItsArguments)
{
    std::ostringstream output;
    std::ostringstream errors;

    EXPECT_EQ(run({"--help"}, output, errors), 0);
    EXPECT_TRUE(output.str().starts_with("usage: verbdb [--times N] CONTENT_DIR OUT.db\n"));
    EXPECT_EQ(run({}, output, errors), 2);
    EXPECT_EQ(run({"--all", "x"}, output, errors), 2);
    output.str("");
    EXPECT_EQ(run({"--report", folder_.path().string()}, output, errors), 0);
    EXPECT_TRUE(output.str().starts_with("verbs              20\n")) << output.str();
    for (const char* line : {"  saillir\t2\n", "  être+avoir\t1\n", "  pronominal\t2\n",
                             "  invariable\t5\n", "  en\t0\n"}) {
        EXPECT_NE(output.str().find(line), std::string::npos) << line;
    }
}

} // namespace
} // namespace lumora::verbdb
