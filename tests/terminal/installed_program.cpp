// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "installed_program.h"

#include "support/world.h"

#include <array>
#include <cstdlib>

#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lumora::terminal {

namespace {

std::string shellQuoted(const std::string& word)
{
    std::string quoted = "'";
    for (const char byte : word) {
        quoted += byte == '\'' ? std::string{"'\\''"} : std::string{byte};
    }
    return quoted + "'";
}

int exitStatus(int waited)
{
    return WIFEXITED(waited) ? WEXITSTATUS(waited) : -1;
}

} // namespace

InstalledProgram::InstalledProgram()
{
    namespace fs = std::filesystem;
    fs::create_directories(folder_ / "bin");
    fs::create_directories(share());
    fs::copy_file(LUMORA_CLI, folder_ / "bin" / "lumora-cli");
    for (const char* name : {"mustache.min.js", "export_html.mustache", "export_txt.mustache"}) {
        fs::copy_file(fs::path{LUMORA_SHARE_DIR} / name, share() / name);
    }
    support::writeContent(share() / "bundle.json", R"({"CFBundleShortVersionString": "9.8"})");
    support::writeSmallDatabase(share() / "verbs.db");
}

Run InstalledProgram::run(const std::vector<std::string>& arguments, const std::string& environment,
                          const std::string& redirection) const
{
    const auto out = folder_ / "out";
    const auto err = folder_ / "err";
    std::string line = "env -u LANGUAGE -u LANG -u XDG_DATA_HOME -u XDG_CONFIG_HOME -u "
                       "XDG_STATE_HOME LC_ALL=C HOME=" +
                       shellQuoted(folder_.path());
    line += " " + environment + " " + shellQuoted(folder_ / "bin" / "lumora-cli");
    for (const auto& argument : arguments) {
        line += " " + shellQuoted(argument);
    }
    line += " >" + shellQuoted(out) + " 2>" + shellQuoted(err) + " " + redirection;
    // NOLINTNEXTLINE(bugprone-command-processor): every word is quoted.
    const int waited = std::system(line.c_str());
    return {exitStatus(waited), support::contentOf(out), support::contentOf(err)};
}

Run InstalledProgram::runOnTerminal(const std::vector<std::string>& arguments,
                                    unsigned short columns) const
{
    const auto program = (folder_ / "bin" / "lumora-cli").string();
    std::vector<std::string> words{program};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> pointers;
    for (auto& word : words) {
        pointers.push_back(word.data());
    }
    pointers.push_back(nullptr);
    const winsize size{24, columns, 0, 0};
    int terminal = -1;
    const auto child = forkpty(&terminal, nullptr, nullptr, &size);
    if (child == 0) {
        setenv("LC_ALL", "C", 1);
        unsetenv("COLUMNS");
        execv(program.c_str(), pointers.data());
        _exit(127);
    }
    Run run;
    std::array<char, 4096> bytes{};
    for (ssize_t count = 0; (count = read(terminal, bytes.data(), bytes.size())) > 0;) {
        run.out.append(bytes.data(), static_cast<std::size_t>(count));
    }
    close(terminal);
    int waited = 0;
    waitpid(child, &waited, 0);
    run.status = exitStatus(waited);
    return run;
}

} // namespace lumora::terminal
