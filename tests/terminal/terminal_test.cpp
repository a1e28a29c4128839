// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "terminal/terminal_fixture.h"

#include <algorithm>
#include <regex>

namespace lumora::terminal {
namespace {

using testing::HasSubstr;

TEST_F(TerminalTest, ConjugatesInTabSeparatedLinesForAPipeInTheUsersLanguage)
{
    const auto run = program.run({"conjugate", "aimer"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out, "aimer\tIndicative\tPresent\tj'\taime\n"
                       "aimer\tIndicative\tPresent\tnous\taimons\n"
                       "aimer\tIndicative\tImperfect\tnous\taimions\n"
                       "aimer\tOther\tParticiple\t\tform of aimer\n");

    const auto french = program.run({"conjugate", "aimer"}, "LC_ALL=C.UTF-8 LANGUAGE=fr");
    EXPECT_TRUE(french.out.starts_with("aimer\tIndicatif\tPrésent\tj'\taime\n")) << french.out;
}

TEST_F(TerminalTest, TellsWhatTheTablesKnow)
{
    const auto queue = platform::DatabaseQueue::open(platform::fileUrl(database()));
    for (const char* sql : {
             "INSERT INTO verb_facts VALUES(9, 3, 'sentir', 13, 'être+avoir', '', '', 3, 1),"
             "(10, 2, 'finir', NULL, 'avoir', 'defective,en', 'invariable', 5, 1),"
             "(13, 1, 'aimer', NULL, 'avoir', '', '', 1, 1), (3, 3, 'aller', 13, '', '', '', 1, 9)",
             "INSERT INTO verb(_id, french) VALUES(15, 'aimer (s'')')",
             "INSERT INTO verb_facts VALUES(15, 1, 'sentir', 13, 'être', 'pronominal', '', 2, 1)",
             "INSERT INTO conjugation(verbid, pronoun, verb, type, conj_order, display) VALUES"
             "(9, '', 'ressortir', 'infinitif', 20, 1), (9, '', 'être x', 'infinitif', 21, 1)",
             "INSERT INTO form_divisions VALUES(1, x'0600080009000000')",
             "UPDATE conjugation SET verb = 'aime, ayme' WHERE verb = 'aime'",
         }) {
        support::executeOn(*queue, sql);
    }
    EXPECT_EQ(program.run({"about", "ressortir"}).out,
              "infinitive\tressortir\npast\têtre x\ngroup\t3\nmodel\tsentir\nlike\taimer\n"
              "auxiliary\têtre, avoir\ntraits\t\nunused\t\nused only\tPresent, Participle\n"
              "use\t3\npartners\t\nalike\taimer (s')\n\n"
              "infinitive\tressortir\npast\t\ngroup\t2\nmodel\tfinir\nlike\t\n"
              "auxiliary\tavoir\ntraits\tdefective, with en, invariable participle\nunused\t\n"
              "used only\tPresent, Participle\nuse\t5\npartners\t\nalike\t\n");
    EXPECT_THAT(program.run({"about", "aimer"}).out, HasSubstr("\npartners\taimer (s')\n"));
    EXPECT_EQ(program.run({"about", "être"}).err, "lumora-cli: nothing is known of \"être\"\n");

    const auto stems = program.run({"conjugate", "--stems", "aimer"});
    EXPECT_THAT(stems.out, HasSubstr("\tj'\taim|e, ayme\n")) << "without a cut: nothing regular";
    EXPECT_THAT(stems.out, HasSubstr("\tnous\taimo|ns\n"));
    EXPECT_THAT(stems.out, HasSubstr("\tnous\taimio|ns\n"));
    EXPECT_THAT(stems.out, HasSubstr("\t\tform of aimer\n"));
    EXPECT_THAT(program.run({"conjugate", "--stems", "aller"}).out, HasSubstr("\tje\tvais\n"));

    const auto both = program.run({"conjugate", "--stems", "--ipa", "aimer"});
    EXPECT_THAT(both.out, HasSubstr("\tj'\taim|e, ayme\tʒɛm, ʒɛm\n"));
    EXPECT_THAT(both.out, HasSubstr("\tnous\taimo|ns\tnuz‿emɔ̃\n"));
}

TEST_F(TerminalTest, ConjugatesTheVerbsOfStandardInput)
{
    const auto list = program.home() / "list";
    const auto queue = platform::DatabaseQueue::open(platform::fileUrl(database()));
    support::executeOn(*queue, "DELETE FROM conjugation WHERE verbid = 8");
    support::writeContent(list, "s'évanouir\r\n\n  \nqqqqqq\npécher\nallre\naimer");

    const auto run = program.run({"conjugate", "-"}, {}, "<'" + list.string() + "'");

    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, "lumora-cli: no verb \"qqqqqq\"\n"
                       "lumora-cli: \"pécher\" is used in the infinitive only\n"
                       "lumora-cli: no verb \"allre\"; did you mean aller?\n");
    EXPECT_THAT(run.out, testing::StartsWith("évanouir (s')\tOther"));
    EXPECT_THAT(run.out, HasSubstr("form of évanouir (s')\n\naimer\tIndicative\tPresent"));

    support::writeContent(list, "pécher\n");
    const auto known = program.run({"conjugate", "-"}, {}, "<'" + list.string() + "'");
    EXPECT_EQ(known.status, 0);
    EXPECT_EQ(known.out, "");
}

TEST_F(TerminalTest, TellsWhatATextMayMean)
{
    const auto one = program.run({"lookup", "que", "nous", "aimions"});
    EXPECT_EQ(one.out, "aimer\taimions\tIndicative\tImperfect\tnous\tphrase\n");
    EXPECT_EQ(program.run({"lookup", "--language", "de", "qwx"}).err,
              "lumora-cli: \"qwx\" is no form of a verb\n");
    EXPECT_EQ(program.run({"lookup", "qwx"}).status, 1);
    EXPECT_EQ(program.run({"lookup"}).err, "lumora-cli: which text?\n");

    const auto list = program.home() / "texts";
    support::writeContent(list, "AIMONS \r\nqwx\n\nto love\n");
    const auto lines = program.run({"lookup", "-"}, {}, "<'" + list.string() + "'");
    EXPECT_EQ(lines.status, 0);
    EXPECT_EQ(lines.out, "AIMONS \taimer\taimons\tIndicative\tPresent\tnous\tfolded\n"
                         "to love\taimer\taimer\t\t\t\tmeaning\n");
    EXPECT_EQ(lines.err, "");
}

TEST_F(TerminalTest, LeadsFromAFormToItsVerb)
{
    const auto conjugated = program.run({"conjugate", "aimions"});
    EXPECT_EQ(conjugated.status, 0);
    EXPECT_EQ(conjugated.err, "lumora-cli: \"aimions\" is a form of aimer\n");
    EXPECT_EQ(conjugated.out, program.run({"conjugate", "aimer"}).out);

    const auto queue = platform::DatabaseQueue::open(platform::fileUrl(database()));
    support::executeOn(*queue, "INSERT INTO conjugation(verbid, pronoun, verb, type, conj_order, "
                               "display) VALUES(8, 'je', 'aime', 'indicatifPresent', 1, 1)");
    const auto several = program.run({"conjugate", "j'aime"});
    EXPECT_EQ(several.out + std::to_string(several.status), "1");
    EXPECT_EQ(several.err, "lumora-cli: \"j'aime\" is a form of pécher and aimer; which verb?\n");

    const auto searched = program.run({"search", "aimons"});
    EXPECT_EQ(searched.status, 1);
    EXPECT_EQ(searched.err, "lumora-cli: \"aimons\" is a form of aimer\n"
                            "lumora-cli: nothing found for \"aimons\"\n");
    EXPECT_EQ(program.run({"search", "aimer"}).err, "");
}

TEST_F(TerminalTest, FindsAVerbAsItIsTyped)
{
    struct {
        std::vector<std::string> typed;
        std::vector<std::string> found;
        const char* why;
    } cases[] = {
        {{"être"}, {"être"}, "as it is written"},
        {{"etre"}, {"être"}, "without accents"},
        {{"e\u0302tre"}, {"être"}, "decomposed"},
        {{" ÊTRE "}, {"être"}, "capitals and blanks"},
        {{"oeuvrer"}, {"œuvrer"}, "an open ligature"},
        {{"pêcher"}, {"pêcher"}, "an exact match wins"},
        {{"pecher"}, {"pêcher", "pécher"}, "both differ by an accent"},
        {{"pècher"}, {"pêcher", "pécher"}, "a wrong accent"},
        {{"ressortir"}, {"ressortir", "ressortir"}, "homographs"},
        {{"s'évanouir"}, {"évanouir (s')"}, "pronominal"},
        {{"s\u2019evanouir"}, {"évanouir (s')"}, "typographic apostrophe, no accent"},
        {{"évanouir"}, {"évanouir (s')"}, "without its pronoun"},
        {{"évanouir (s')"}, {"évanouir (s')"}, "as it is listed"},
        {{"Se", "méfier"}, {"méfier (se)"}, "two words"},
        {{"--", "aller"}, {"aller"}, "after the end of the options"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        std::vector<std::string> arguments{"conjugate"};
        arguments.insert(arguments.end(), c.typed.begin(), c.typed.end());

        const auto run = program.run(arguments);

        EXPECT_EQ(run.status, 0) << run.err;
        std::vector<std::string> found;
        std::istringstream lines{run.out};
        for (std::string line; std::getline(lines, line);) {
            if (const auto at = line.find("\tform of "); at != std::string::npos) {
                found.push_back(line.substr(at + 9));
                EXPECT_TRUE(line.starts_with(found.back() + '\t')) << line;
            }
        }
        EXPECT_THAT(found, testing::UnorderedElementsAreArray(c.found));
    }
}

TEST_F(TerminalTest, SearchesAsTheOptionsSay)
{
    support::executeOn(*platform::DatabaseQueue::open(platform::fileUrl(database())),
                       "INSERT INTO verb_facts VALUES(9, 3, 'sentir', 13, 'être+avoir', '', '', 3,"
                       " 1), (10, 2, 'finir', NULL, 'avoir', '', '', 5, 1)");
    struct {
        std::vector<std::string> arguments;
        const char* out;
    } cases[] = {
        {{"al"}, "aller\tgo\n"},
        {{"llo", "--anywhere"}, "falloir\tfew\n"},
        {{"suis", "--conjugations"}, "être\tbe\n"},
        {{"--translations", "fis"}, "pêcher\tfish\n"},
        {{"geh", "--translations", "--language", "de"}, "aller\tgehen\n"},
        {{"al", "--language=de"}, "aller\tgehen\n"},
        {{"S\u2019", "--anywhere"}, "évanouir (s')\tso\n"},
        {{"ress", "--language", "fr"},
         "ressortir (être, avoir)\tressortir\nressortir (avoir)\tressortir\n"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.arguments.front());
        auto arguments = c.arguments;
        arguments.insert(arguments.begin(), "search");

        const auto run = program.run(arguments);

        EXPECT_EQ(run.out, c.out) << run.err;
        EXPECT_EQ(run.err, "");
        EXPECT_EQ(run.status, 0);
    }
}

TEST_F(TerminalTest, ExportsBothDocuments)
{
    const auto text = program.run({"export", "aimer", "--text", "--language", "en"});
    EXPECT_EQ(text.status, 0) << text.err;
    EXPECT_TRUE(text.out.starts_with("aimer (love)\n")) << text.out;
    EXPECT_THAT(text.out, HasSubstr("Present\n    j'aime\n    nous aimons\n"));
    EXPECT_THAT(text.out, HasSubstr("=== Other forms ==="));

    const auto html = program.run({"export", "--html", "s'évanouir"});
    EXPECT_EQ(html.status, 0) << html.err;
    EXPECT_TRUE(html.out.starts_with("<!DOCTYPE html>\n"));
    EXPECT_THAT(html.out, HasSubstr("évanouir (s&#39;)</h1>"));
    EXPECT_EQ(text.err + html.err, "");
}

TEST_F(TerminalTest, ExportsOneVerbOfThoseThatShareAName)
{
    support::executeOn(*platform::DatabaseQueue::open(platform::fileUrl(database())),
                       "INSERT INTO verb_facts VALUES(9, 3, 'sentir', 13, 'être+avoir', '', '', 3,"
                       " 1), (10, 2, 'finir', NULL, 'avoir', '', '', 2, 1)");
    const std::string all = "there are 2: 1 is ressortir (avoir), 2 is ressortir (être, avoir)";
    struct {
        std::vector<std::string> options;
        const char* form;
        std::string err;
        int status = 0;
    } const cases[] = {
        {{}, "je ressortis\n", all + "; this is 1, --number chooses another"},
        {{"--number", "1"}, "je ressortis\n", ""},
        {{"--number=2"}, "je ressors\n", ""},
        {{"--number", "3"}, "", "no verb is number 3, " + all, 1},
        {{"--number"}, "", "--number needs a number", 2},
        {{"--number", "0"}, "", "--number counts verbs from 1, not \"0\"", 2},
        {{"--number", "2x"}, "", "--number counts verbs from 1, not \"2x\"", 2},
    };
    for (const auto& c : cases) {
        std::vector<std::string> arguments{"export", "ressortir", "--text"};
        arguments.insert(arguments.end(), c.options.begin(), c.options.end());
        SCOPED_TRACE(testing::PrintToString(arguments));

        const auto run = program.run(arguments);

        EXPECT_EQ(run.status, c.status);
        EXPECT_EQ(run.err, c.err.empty() ? "" : "lumora-cli: " + c.err + "\n");
        const std::regex form{"je ressort?[a-z]*\n"};
        const std::vector<std::string> found{
            std::sregex_token_iterator{run.out.begin(), run.out.end(), form}, {}};
        EXPECT_EQ(found,
                  c.status == 0 ? std::vector<std::string>{c.form} : std::vector<std::string>{});
    }
}

TEST_F(TerminalTest, SaysWhatIsWrongInOneLine)
{
    struct {
        std::vector<std::string> arguments;
        int status;
        const char* message;
    } cases[] = {
        {{}, 2, "no command; try --help"},
        {{"conjugat", "être"}, 2, "no command \"conjugat\"; try --help"},
        {{"conjugate"}, 2, "which verb?"},
        {{"backup"}, 2, "which file?"},
        {{"restore", "one", "two"}, 2, "one file at a time"},
        {{"backup", "--language", "de", "file"}, 2, "this command has no option \"--language\""},
        {{"version", "two"}, 2, "one word too many: \"two\""},
        {{"help", "conjugate", "two"}, 2, "one word too many: \"two\""},
        {{"about"}, 2, "which verb?"},
        {{"about", "être", "--stems"}, 2, "this command has no option \"--stems\""},
        {{"about", "-"}, 2, "this command has no option \"-\""},
        {{"conjugate", "-", "être"}, 2, "either a verb or \"-\" for those of standard input"},
        {{"search", ""}, 2, "which text?"},
        {{"search", "a", "--number", "2"}, 2, "this command has no option \"--number\""},
        {{"search", "a", "--html"}, 2, "this command has no option \"--html\""},
        {{"conjugate", "être", "--anywhere"}, 2, "this command has no option \"--anywhere\""},
        {{"export", "être"}, 2, "export needs --html or --text"},
        {{"export", "être", "--html", "--text"}, 2, "--html and --text exclude each other"},
        {{"search", "a", "--language"}, 2, "--language needs a code"},
        {{"search", "a", "--language", "tr"},
         2,
         "there are no translations into \"tr\", only into en, fr, de, es, pt, it and nl"},
        {{"search", "qqq"}, 1, "nothing found for \"qqq\""},
        {{"conjugate", "qqqqqq"}, 1, "no verb \"qqqqqq\""},
        {{"conjugate", "qqq\nq\x1b[31m"}, 1, "no verb \"qqq\uFFFDq\uFFFD[31m\""},
        {{"conjugate", "allre"}, 1, "no verb \"allre\"; did you mean aller?"},
        {{"export", "pechre", "--text"}, 1, "no verb \"pechre\"; did you mean pêcher or pécher?"},
        {{"export", "aimer", "--text", "--number", "2"},
         1,
         "no verb is number 2, there is only aimer"},
        {{"conjugate", "s'aller"}, 1, "no verb \"s'aller\"; did you mean aller?"},
        {{"lookup", std::string(10000, 'q')},
         1,
         "\"qqqqqqqqqqqqqqqqqqqqqqqqqqqqqqqqqqqqqqqqqqqqqqqqqqqqqqqqqqqq\u2026\" is no form of a "
         "verb"},
        {{"conjugate", "caf\xE9"}, 1, "no verb \"caf\uFFFD\""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.message);
        const auto run = program.run(c.arguments);
        EXPECT_EQ(run.status, c.status);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err, std::string{"lumora-cli: "} + c.message + '\n');
    }
}

TEST_F(TerminalTest, FailsInOneLineWhenAFileIsNotAsItShouldBe)
{
    struct {
        const char* file;
        std::optional<std::string> content;
        std::vector<std::string> arguments;
        const char* message;
    } cases[] = {
        {"export_txt.mustache", "`", {"export", "être", "--text"}, "JS Error: "},
        {"export_html.mustache", "caf\xE9", {"export", "être", "--html"}, "is not UTF-8 text"},
        {"mustache.min.js", {}, {"export", "être", "--text"}, "Unable to find mustache JS file"},
        {"verbs.db", "no database at all, though long enough", {"search", "a"}, "not a database"},
        {"verbs.db", "no database at all", {"conjugate", "a"}, "not a database"},
        {"verbs.db", {}, {"search", "a"}, "the verb database is missing or cannot be read"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.message);
        std::filesystem::remove(program.share() / c.file);
        if (c.content) {
            support::writeContent(program.share() / c.file, *c.content);
        }

        const auto run = program.run(c.arguments);

        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.out, "");
        EXPECT_TRUE(run.err.starts_with("lumora-cli: ")) << run.err;
        EXPECT_THAT(run.err, HasSubstr(c.message));
        EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << run.err;
    }
    EXPECT_FALSE(std::filesystem::exists(database())) << "a missing database is not made";
}

TEST_F(TerminalTest, CarriesFavouritesAndHistoryBesideARunningApplication)
{
    const auto home = program.home();
    const auto data = home / "data" / "lumora";
    const std::string environment = "XDG_DATA_HOME='" + (home / "data").string() + "'";
    const auto file = home / "mine \xff.json";
    EXPECT_THAT(program.run({"backup", file}, environment).err, HasSubstr("start lumora once"));
    EXPECT_FALSE(std::filesystem::exists(data)) << "nothing is made for it";

    std::filesystem::create_directories(data);
    support::writeSmallDatabase(data / "verbs.db");
    const auto application = platform::DatabaseQueue::open(platform::fileUrl(data / "verbs.db"));
    support::executeOn(*application, "INSERT INTO favourite(verbid) VALUES (3), (1)");
    support::executeOn(*application, "INSERT INTO history(verbid, timestamp) VALUES (2, 5)");
    EXPECT_EQ(program.run({"backup", file}, environment).out,
              "favourites: 2, verbs in the history: 1\n");
    support::executeOn(*application, "DELETE FROM favourite WHERE verbid = 3");
    support::executeOn(*application, "DELETE FROM history");

    support::executeOn(*application, "BEGIN IMMEDIATE");
    const auto kept = program.run({"restore", file}, environment);
    EXPECT_EQ(kept.status, 1);
    EXPECT_EQ(kept.err,
              "lumora-cli: favourites and history cannot be reached: database is locked\n");
    support::executeOn(*application, "COMMIT");
    EXPECT_EQ(program.run({"restore", file}, environment).out,
              "new favourites: 1, new in the history: 1\n");
    application->inDatabase([](platform::Database& database) {
        auto rows = database.executeQuery("SELECT COUNT(*) FROM favourite, history", {});
        ASSERT_TRUE(rows && rows->next());
        EXPECT_EQ(rows->longForColumn(0), 2);
    });

    const auto foreign = program.run({"restore", data / "verbs.db"}, environment);
    EXPECT_EQ(foreign.status, 1);
    EXPECT_THAT(foreign.err, HasSubstr("was not saved by Lumora"));
}

} // namespace
} // namespace lumora::terminal
