// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "terminal/terminal_fixture.h"

#include <regex>
#include <set>

namespace lumora::terminal {
namespace {

using testing::HasSubstr;
using testing::Not;

TEST_F(TerminalTest, PutsColumnsOnATerminalAsManyAsFit)
{
    const auto wide = program.runOnTerminal({"conjugate", "aimer"}, 80);
    EXPECT_EQ(wide.status, 0);
    EXPECT_TRUE(wide.out.starts_with("aimer (love)\r\n\r\nIndicative\r\n\r\n")) << wide.out;
    EXPECT_THAT(wide.out, HasSubstr("\r\n     j'aime"));
    EXPECT_THAT(wide.out, HasSubstr("\r\n  nous aimons"));
    EXPECT_THAT(wide.out, HasSubstr("Present           Present perfect   Imperfect"));
    EXPECT_THAT(wide.out, Not(HasSubstr("\t")));

    const auto narrow = program.runOnTerminal({"conjugate", "aimer"}, 10);
    EXPECT_THAT(narrow.out, HasSubstr("\r\n  Present\r\n"));

    const auto results = program.runOnTerminal({"search", "p"}, 80);
    EXPECT_THAT(results.out, HasSubstr("pêcher   fish\r\n"));
    EXPECT_THAT(results.out, HasSubstr("pouvoir  Éclat\r\n"));
    EXPECT_THAT(results.out, HasSubstr("pe\u0301ter    burst\r\n")) << "an accent takes no column";
}

TEST_F(TerminalTest, HelpsAndTellsItsVersion)
{
    struct {
        std::vector<std::string> arguments;
        const char* usage;
    } cases[] = {
        {{"--help"}, "COMMAND [OPTIONS]"},
        {{"help", "conjugate"}, "conjugate"},
        {{"search", "a", "--help"}, "search"},
        {{"export", "-h"}, "export"},
    };
    for (const auto& c : cases) {
        const auto help = program.run(c.arguments);
        EXPECT_EQ(help.status, 0) << help.err;
        EXPECT_TRUE(help.out.starts_with(std::string{"Usage: lumora-cli "} + c.usage)) << help.out;
    }
    EXPECT_EQ(program.run({"--version"}).out, "lumora-cli 9.8\n");
}

/// Every "--option" that the program's help names.
std::set<std::string> optionsIn(const std::string& help)
{
    static const std::regex kOption{"--([a-z]+)"};
    std::set<std::string> options;
    for (std::sregex_iterator match{help.begin(), help.end(), kOption};
         match != std::sregex_iterator{}; ++match) {
        options.insert(match->str(1));
    }
    return options;
}

TEST_F(TerminalTest, EveryOptionIsInTheManualAndInTheCompletions)
{
    struct {
        const char* file;
        const char* before;
    } files[] = {
        {"man/lumora-cli.1", " Fl -"},
        {"completions/lumora-cli.bash", "--"},
        {"completions/_lumora-cli", "--"},
        {"completions/lumora-cli.fish", " -l "},
    };
    std::string help;
    for (const char* command : {"conjugate", "about", "search", "export"}) {
        help += program.run({"help", command}).out;
    }
    const auto options = optionsIn(help);
    ASSERT_GT(options.size(), 6U);
    for (const auto& file : files) {
        SCOPED_TRACE(file.file);
        const auto content =
            support::contentOf(std::filesystem::path{LUMORA_PACKAGING} / file.file);
        for (const auto& option : options) {
            EXPECT_THAT(content, HasSubstr(file.before + option));
        }
    }
}

TEST_F(TerminalTest, CompletesCommandsOptionsAndVerbsInTheShell)
{
    struct {
        const char* line;
        const char* completions;
    } cases[] = {
        {"con", "conjugate\n"},      {"export --t", "--text\n"},   {"search --language p", "pt\n"},
        {"conjugate al", "aller\n"}, {"about evan", "évanouir\n"}, {"export evan", "évanouir\n"},
        {"--v", "--version\n"},
    };
    // The program comes first among the shell's arguments.
    const std::string shell =
        "bash -c 'PATH=${1%/*}:$PATH; source \"$2\"; read -ra COMP_WORDS <<< \"lumora-cli $3\";"
        " COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _lumora_cli;"
        " printf \"%s\\n\" \"${COMPREPLY[@]}\"' bash";
    for (const auto& c : cases) {
        SCOPED_TRACE(c.line);
        const auto run =
            program.run({LUMORA_PACKAGING "/completions/lumora-cli.bash", c.line}, shell);
        EXPECT_EQ(run.out, c.completions) << run.err;
    }
}

TEST_F(TerminalTest, NoticesThatTheOutputIsLost)
{
    const auto full = program.run({"export", "être", "--text"}, {}, ">/dev/full");
    EXPECT_EQ(full.status, 1);
    EXPECT_EQ(full.err, "lumora-cli: the output cannot be written\n");

    // A reader that has seen enough is no fault to report.
    const auto closed =
        program.run({"export", "être", "--html"},
                    "--ignore-signal=PIPE sh -c '{ sleep 0.2; \"$@\"; } | true' sh");
    EXPECT_EQ(closed.err, "");
}

} // namespace
} // namespace lumora::terminal
