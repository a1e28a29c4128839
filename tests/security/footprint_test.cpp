// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "security/trace.h"
#include "support/shell.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include <sys/stat.h>

namespace lumora::security {
namespace {

namespace fs = std::filesystem;

/// A screen without a monitor, for one test.
class Screen {
public:
    explicit Screen(const fs::path& files) : files_{files}
    {
        fs::create_directory(files_);
        // It says its number once it can be drawn on.
        const auto pipe = support::shellQuoted(files_ / "number");
        support::runInShell("mkfifo " + pipe + "; Xvfb -displayfd 1 -nolisten tcp > " + pipe +
                            " 2> /dev/null & echo $! > " +
                            support::shellQuoted(files_ / "process"));
        std::ifstream{files_ / "number"} >> number_;
    }
    ~Screen()
    {
        support::runInShell("kill $(cat " + support::shellQuoted(files_ / "process") + ")");
    }
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    std::string display() const { return ":" + number_; }

private:
    fs::path files_;
    std::string number_;
};

/// A home of its own, with everything in it that the toolkit and its libraries
/// may ask the environment for.
class Footprint : public testing::Test {
protected:
    void SetUp() override
    {
        for (const auto& name : {"home", "runtime", "temporary"}) {
            fs::create_directory(home / name);
            fs::permissions(home / name, fs::perms::owner_all);
        }
    }

    std::map<std::string, std::string> environment() const
    {
        return {{"PATH", "/usr/bin:/bin"},
                {"HOME", home / "home"},
                {"TMPDIR", home / "temporary"},
                {"XDG_RUNTIME_DIR", home / "runtime"},
                {"XDG_DATA_HOME", home / "data"},
                {"XDG_CONFIG_HOME", home / "config"},
                {"XDG_STATE_HOME", home / "state"},
                {"QT_QPA_PLATFORM", "offscreen"},
                {"LANG", "C.UTF-8"},
                {"DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/bus"},
                {"PULSE_SERVER", "unix:/nonexistent/native"},
                {"ASAN_OPTIONS", "detect_leaks=0"}};
    }

    static bool isBelow(const fs::path& path, const fs::path& folder)
    {
        const auto inside = path.lexically_normal().lexically_relative(folder);
        return !inside.empty() && *inside.begin() != "..";
    }

    void expectHarmless(const Trace& trace, const std::vector<fs::path>& writable) const
    {
        EXPECT_THAT(trace.sockets, testing::Each("AF_UNIX"));
        EXPECT_THAT(trace.programs, testing::SizeIs(1)) << "no other program is run, no shell";
        for (const auto& path : trace.written) {
            const bool allowed =
                path == "/dev/null" ||
                // The name that a thread gives itself.
                isBelow(path, "/proc") ||
                std::any_of(writable.begin(), writable.end(),
                            [&](const auto& folder) { return isBelow(path, folder); });
            EXPECT_TRUE(allowed) << "writes " << path;
        }
        EXPECT_THAT(trace.written, testing::Not(testing::IsEmpty())) << "or the trace is blind";
    }

    support::TemporaryFolder home;
};

TEST_F(Footprint, ATourOfEveryScreenOpensNoNetworkSocketAndWritesOnlyItsPictures)
{
    const auto pictures = home / "pictures";
    const auto trace = traced({LUMORA_PROGRAM, "--tour", pictures}, environment());

    EXPECT_EQ(trace.exitStatus, 0);
    // It has a home of its own among the temporary files.
    expectHarmless(trace, {pictures, home / "temporary"});
}

TEST_F(Footprint, TheProgramWritesOnlyBelowItsThreeFoldersForItsUserAlone)
{
    // With all that draws on a real one, where shaders are compiled.
    const Screen screen{home / "screen"};
    auto variables = environment();
    variables["QT_QPA_PLATFORM"] = "xcb";
    variables["DISPLAY"] = screen.display();
    const auto usersOwn = ::umask(S_IWGRP | S_IWOTH);
    // In the foreground, or it sends the signal twice and the second one kills.
    const auto trace =
        traced({"timeout", "--foreground", "--preserve-status", "-s", "TERM", "6", LUMORA_PROGRAM},
               variables);
    ::umask(usersOwn);

    EXPECT_EQ(trace.exitStatus, 0);
    const std::vector<fs::path> folders{home / "data/lumora", home / "config/lumora",
                                        home / "state/lumora"};
    auto withoutTimeout = trace;
    std::erase(withoutTimeout.programs, "/usr/bin/timeout");
    // The folders of the desktop are made where they are missing.
    auto writable = folders;
    for (const auto& folder : folders) {
        std::erase(withoutTimeout.written, folder);
        std::erase(withoutTimeout.written, folder.parent_path());
    }
    expectHarmless(withoutTimeout, writable);

    EXPECT_TRUE(fs::exists(folders[0] / "verbs.db"));
    for (const auto& folder : folders) {
        EXPECT_EQ(fs::status(folder).permissions(), fs::perms::owner_all) << folder;
        for (const auto& file : fs::recursive_directory_iterator{folder}) {
            // What is compiled is written as the toolkit likes, in our folder.
            if (file.is_regular_file() && !isBelow(file.path(), folders[2] / "qml") &&
                !isBelow(file.path(), folders[2] / "shaders")) {
                EXPECT_EQ(file.status().permissions(),
                          fs::perms::owner_read | fs::perms::owner_write)
                    << file.path();
            }
        }
    }
}

TEST_F(Footprint, WhateverAPersonDoesStaysWithThePerson)
{
    // Searches, options, exports, speech, links: in a home among the temporary files.
    const auto trace =
        traced({LUMORA_RANDOM_SESSION, "--seed", "2", "--actions", "300"}, environment());
    EXPECT_EQ(trace.exitStatus, 0);
    expectHarmless(trace, {home / "temporary"});
}

TEST_F(Footprint, TheTerminalsProgramWritesOnlyTheFileThatItIsAskedFor)
{
    const auto data = home / "data/lumora";
    const auto share = fs::path{LUMORA_PROGRAM}.parent_path().parent_path() / "share/lumora";
    fs::create_directories(data);
    fs::copy_file(share / "verbs.db", data / "verbs.db");
    for (const std::vector<std::string>& command :
         {std::vector<std::string>{LUMORA_CLI, "conjugate", "aller"},
          {LUMORA_CLI, "search", "al"},
          {LUMORA_CLI, "export", "--html", "aller"}}) {
        SCOPED_TRACE(command[1]);
        const auto trace = traced(command, environment());
        EXPECT_EQ(trace.exitStatus, 0);
        EXPECT_THAT(trace.sockets, testing::IsEmpty());
        EXPECT_THAT(trace.programs, testing::SizeIs(1));
        EXPECT_THAT(trace.written, testing::IsEmpty());
    }

    const auto saved = home / "saved";
    fs::create_directory(saved);
    const auto trace = traced({LUMORA_CLI, "backup", saved / "backup.json"}, environment());

    EXPECT_EQ(trace.exitStatus, 0);
    expectHarmless(trace, {saved, data});
    EXPECT_TRUE(fs::exists(saved / "backup.json"));
}

/// The eyes of the tests above: what they must see is seen.
TEST_F(Footprint, ATraceShowsSocketsShellsAndFiles)
{
    const auto file = home / "touched";
    const auto trace =
        traced({"/bin/bash", "-c",
                "echo > " + file.string() + "; cd " + home.path().string() +
                    "; mkdir made; /usr/bin/env true; exec 3<>/dev/udp/127.0.0.1/9; true"},
               environment());
    EXPECT_THAT(trace.programs, testing::Contains(testing::EndsWith("/bash")));
    EXPECT_THAT(trace.programs, testing::Contains(testing::EndsWith("/env")));
    EXPECT_THAT(trace.sockets, testing::Contains("AF_INET"));
    EXPECT_THAT(trace.written, testing::Contains(file));
    EXPECT_THAT(trace.written,
                testing::Contains(testing::ResultOf(
                    [](const fs::path& path) { return path.filename(); }, fs::path{"made"})));
}

} // namespace
} // namespace lumora::security
