// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "terminal/installed_program.h"

#include "support/shell.h"
#include "support/shipped_templates.h"
#include "support/world.h"

namespace lumora::terminal {

using support::shellQuoted;

InstalledProgram::InstalledProgram()
{
    namespace fs = std::filesystem;
    fs::create_directories(folder_ / "bin");
    fs::create_directories(share());
    fs::copy_file(LUMORA_CLI, folder_ / "bin" / "lumora-cli");
    support::copyTemplates(LUMORA_SHARE_DIR, share());
    support::writeContent(share() / "bundle.json", R"({"CFBundleShortVersionString": "9.8"})");
    support::writeSmallDatabase(share() / "verbs.db");
}

Run InstalledProgram::run(const std::vector<std::string>& arguments, const std::string& environment,
                          const std::string& redirection) const
{
    return runLine(lineOf(arguments, environment), redirection);
}

Run InstalledProgram::runOnTerminal(const std::vector<std::string>& arguments, int columns) const
{
    const auto line = "stty cols " + std::to_string(columns) + "; " + lineOf(arguments, {});
    return runLine("script --quiet --return --echo never --command " + shellQuoted(line) +
                       " /dev/null",
                   "</dev/null");
}

std::string InstalledProgram::lineOf(const std::vector<std::string>& arguments,
                                     const std::string& environment) const
{
    std::string line = "env -u LANGUAGE -u LANG -u COLUMNS -u XDG_DATA_HOME -u XDG_CONFIG_HOME -u "
                       "XDG_STATE_HOME LC_ALL=C HOME=" +
                       shellQuoted(home());
    line += " " + environment + " " + shellQuoted(folder_ / "bin" / "lumora-cli");
    for (const auto& argument : arguments) {
        line += " " + shellQuoted(argument);
    }
    return line;
}

Run InstalledProgram::runLine(const std::string& line, const std::string& redirection) const
{
    const auto out = folder_ / "out";
    const auto err = folder_ / "err";
    const int status = support::runInShell(line + " >" + shellQuoted(out) + " 2>" +
                                           shellQuoted(err) + " " + redirection);
    return {status, support::contentOf(out), support::contentOf(err)};
}

} // namespace lumora::terminal
