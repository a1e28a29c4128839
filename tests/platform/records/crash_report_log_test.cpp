// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/records/crash_report_log.h"

#include "text/text.h"

#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <cstddef>
#include <string>
#include <vector>

namespace lumora::platform {

namespace {

using support::contentOf;
using support::TemporaryFolder;
using support::writeContent;

std::string reportIn(const std::filesystem::path& folder)
{
    std::string reports;
    for (const auto& file : std::filesystem::directory_iterator(folder)) {
        if (file.path().filename().string().starts_with("crash-")) {
            reports += contentOf(file.path());
        }
    }
    return reports;
}

int overflow(volatile int* depth) // NOLINT(misc-no-recursion): that is the point.
{
    volatile char frame[4096];
    frame[0] = static_cast<char>(*depth);
    *depth = *depth + 1;
    return *depth < 0 ? 0 : overflow(depth) + frame[0];
}

} // namespace

TEST(CrashReporter, FillsPlaceholdersInOrder)
{
    const struct {
        const char* format;
        std::vector<LogArgument> arguments;
        const char* line;
    } cases[] = {
        {"verb %@ has %d forms", {"aller", 48}, "verb aller has 48 forms"},
        {"%@%@", {"a", "b"}, "ab"},
        {"%@", {"%d"}, "%d"}, // an argument is no format
        {"%@ %d %@", {"one"}, "one %d %@"},
        {"100% %", {1}, "100% %"},
        {"no place", {"lost"}, "no place"},
        {"%d", {-2147483647 - 1}, "-2147483648"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(text::formatted(c.format, c.arguments), c.line);
    }
}

TEST(CrashReportLog, AnEntryStaysOneLineOfBoundedLength)
{
    const TemporaryFolder folder;
    CrashReportLog log(folder / "state");

    log.logWithFormat("%@", {"a\nb\x01\x7f\xff"});
    log.logWithFormat("%@", {std::string(3000, 'x') + std::string(3000, '\n')});
    log.logWithFormat("%@", {"x" + text::replaced(std::string(3000, '-'), "-", "é")});

    const std::string content = contentOf(folder / "state/log.txt");
    EXPECT_TRUE(content.starts_with("a\\nb\\x01\\x7f\uFFFD\n")) << content.substr(0, 80);
    EXPECT_EQ(std::count(content.begin(), content.end(), '\n'), 3);
    EXPECT_LT(content.size(), 2 * CrashReportLog::kMaximumEntryBytes + 80);
    EXPECT_TRUE(content.ends_with("é\n")) << "cut inside a character";
}

TEST(CrashReportLog, AFolderThatCannotBeMadeEndsTheLogAndNotTheProgram)
{
    const TemporaryFolder folder;
    writeContent(folder / "plain", "as it was");

    CrashReportLog log(folder / "plain/state");
    log.logWithFormat("lost", {});
    log.setCustomValue(true, "key");

    EXPECT_EQ(contentOf(folder / "plain"), "as it was");
}

TEST(CrashReportLog, ACrashLeavesAReportAndStillEndsTheProgram)
{
    for (const int signal : {SIGSEGV, SIGABRT, SIGBUS, SIGFPE, SIGILL}) {
        SCOPED_TRACE(signal);
        const TemporaryFolder folder;

        const auto crash = [&] {
            CrashReportLog log(folder / "a b");
            log.setCustomValue(std::string("before"), "early");
            log.installCrashHandler();
            log.setCustomValue(std::string("fr\nCH"), "language");
            log.setCustomValue(true, "tablet");
            log.logWithFormat("opened %@", {"aller"});
            ::raise(signal);
        };

        EXPECT_EXIT(crash(), testing::KilledBySignal(signal), "");
        const std::string report = reportIn(folder / "a b");
        for (const char* part : {"Stack:\n", "[0x", "early: before\n", "language: fr\\nCH\n",
                                 "tablet: true\n", "Log:\nopened aller\n"}) {
            EXPECT_THAT(report, testing::HasSubstr(part));
        }
    }
}

#if !defined(__SANITIZE_ADDRESS__)
TEST(CrashReportLog, AnOverflownStackStillLeavesAReport)
{
    const TemporaryFolder folder;

    const auto crash = [&] {
        CrashReportLog log(folder.path());
        log.installCrashHandler();
        volatile int depth = 0;
        static_cast<void>(overflow(&depth));
    };

    EXPECT_EXIT(crash(), testing::KilledBySignal(SIGSEGV), "");
    EXPECT_TRUE(reportIn(folder.path()).starts_with("SIGSEGV\n"));
}
#endif

} // namespace lumora::platform
