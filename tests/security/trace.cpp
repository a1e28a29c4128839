// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "security/trace.h"

#include "support/shell.h"
#include "support/temporary_folder.h"

#include <fstream>
#include <regex>
#include <stdexcept>

namespace lumora::security {

namespace {

constexpr const char* kCalls =
    "trace=socket,execve,execveat,open,openat,openat2,creat,mkdir,mkdirat,mknod,mknodat,rename,"
    "renameat,renameat2,unlink,unlinkat,rmdir,link,linkat,symlink,symlinkat,chmod,fchmodat,"
    "truncate";

/// The texts in quotes of a line, and the folder of a descriptor before each.
std::vector<std::filesystem::path> pathsIn(const std::string& line)
{
    static const std::regex kPath{R"((?:<([^>]*)>, )?"((?:[^"\\]|\\.)*)\")"};
    std::vector<std::filesystem::path> paths;
    for (std::sregex_iterator match{line.begin(), line.end(), kPath}, end; match != end; ++match) {
        paths.push_back(std::filesystem::path{(*match)[1].str()} / (*match)[2].str());
    }
    return paths;
}

void readLine(const std::string& line, Trace& trace)
{
    static const std::regex kFailed{R"( = -1 )"};
    static const std::regex kSocket{R"(^socket\((AF_\w+))"};
    static const std::regex kWriting{"O_WRONLY|O_RDWR|O_CREAT|O_TRUNC"};
    std::smatch match;
    if (std::regex_search(line, match, kSocket)) {
        // Trying counts.
        trace.sockets.push_back(match[1]);
        return;
    }
    if (std::regex_search(line, kFailed)) {
        return;
    }
    const auto paths = pathsIn(line);
    if (paths.empty()) {
        return;
    }
    if (line.starts_with("exec")) {
        trace.programs.push_back(paths.front());
    } else if (!line.starts_with("open") || std::regex_search(line, kWriting)) {
        trace.written.insert(trace.written.end(), paths.begin(), paths.end());
    }
}

} // namespace

Trace traced(const std::vector<std::string>& command,
             const std::map<std::string, std::string>& environment)
{
    const support::TemporaryFolder folder;
    std::string commandLine = "exec env -i";
    for (const auto& [name, value] : environment) {
        commandLine += " " + support::shellQuoted(name + "=" + value);
    }
    // A file for each thread, so that no call is torn by another's.
    commandLine += " strace -ff --seccomp-bpf -qq -y -s 4096 -e " + std::string{kCalls} + " -o " +
                   support::shellQuoted(folder / "trace") + " --";
    for (const auto& word : command) {
        commandLine += " " + support::shellQuoted(word);
    }
    Trace trace;
    trace.exitStatus = support::runInShell(commandLine);
    for (const auto& file : std::filesystem::directory_iterator{folder.path()}) {
        std::ifstream lines{file.path()};
        for (std::string line; std::getline(lines, line);) {
            readLine(line, trace);
        }
    }
    if (trace.programs.empty()) {
        throw std::runtime_error("a program cannot be traced here: what it does is not known");
    }
    return trace;
}

} // namespace lumora::security
