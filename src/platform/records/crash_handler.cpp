// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/records/crash_handler.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstddef>
#include <string>

#include <execinfo.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lumora::platform {

namespace {

constexpr std::array kFatalSignals = {SIGSEGV, SIGABRT, SIGBUS, SIGFPE, SIGILL};
constexpr std::size_t kPathBytes = 4096;
constexpr std::size_t kValuesBytes = std::size_t{16} * 1024;
constexpr std::size_t kStackBytes = std::size_t{64} * 1024;
constexpr off_t kLogEndBytes = off_t{16} * 1024;
constexpr int kMaximumFrames = 64;

/// Text of a fixed size: the handler may not allocate.
template <std::size_t Capacity>
struct FixedText {
    std::array<char, Capacity> bytes{};
    std::size_t size = 0;

    void append(std::string_view text)
    {
        const std::size_t count = std::min(text.size(), Capacity - 1 - size);
        std::copy_n(text.data(), count, bytes.data() + size);
        size += count;
        bytes[size] = '\0';
    }
    void appendNumber(unsigned number, int digits)
    {
        std::array<char, 10> reversed{};
        std::size_t count = 0;
        do {
            reversed[count++] = static_cast<char>('0' + number % 10);
            number /= 10;
        } while (number > 0 || static_cast<int>(count) < digits);
        while (count > 0) {
            append({&reversed[--count], 1});
        }
    }
    std::string_view text() const { return {bytes.data(), size}; }
};

/// What the handler reads. Values have two copies; new ones go into the copy
/// that the handler does not use.
struct CrashState {
    FixedText<kPathBytes> folder;
    FixedText<kPathBytes> log;
    std::array<FixedText<kValuesBytes>, 2> values;
    std::atomic<std::size_t> currentValues = 0;
    std::atomic<pid_t> reporter = 0;
    alignas(std::max_align_t) std::array<std::byte, kStackBytes> stack;
};

CrashState crash; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

void writeAll(int file, std::string_view text)
{
    while (!text.empty()) {
        const ssize_t written = ::write(file, text.data(), text.size());
        if (written > 0) {
            text.remove_prefix(static_cast<std::size_t>(written));
        } else if (written == 0 || errno != EINTR) {
            return;
        }
    }
}

std::string_view signalName(int number)
{
    switch (number) {
    case SIGSEGV:
        return "SIGSEGV";
    case SIGABRT:
        return "SIGABRT";
    case SIGBUS:
        return "SIGBUS";
    case SIGFPE:
        return "SIGFPE";
    case SIGILL:
        return "SIGILL";
    default:
        return "signal";
    }
}

/// For example 20260314T092653Z, by arithmetic alone.
template <std::size_t Capacity>
void appendTime(FixedText<Capacity>& text)
{
    using namespace std::chrono;
    const auto now = floor<seconds>(system_clock::now());
    const auto day = floor<days>(now);
    const year_month_day date(day);
    const hh_mm_ss time(now - day);
    text.appendNumber(static_cast<unsigned>(static_cast<int>(date.year())), 4);
    text.appendNumber(static_cast<unsigned>(date.month()), 2);
    text.appendNumber(static_cast<unsigned>(date.day()), 2);
    text.append("T");
    text.appendNumber(static_cast<unsigned>(time.hours().count()), 2);
    text.appendNumber(static_cast<unsigned>(time.minutes().count()), 2);
    text.appendNumber(static_cast<unsigned>(time.seconds().count()), 2);
    text.append("Z");
}

void copyLogEnd(int report)
{
    const int log = ::open(crash.log.bytes.data(), O_RDONLY | O_CLOEXEC);
    if (log < 0) {
        return;
    }
    const off_t size = ::lseek(log, 0, SEEK_END);
    ::lseek(log, std::max<off_t>(0, size - kLogEndBytes), SEEK_SET);
    std::array<char, 1024> buffer; // NOLINT(cppcoreguidelines-pro-type-member-init)
    ssize_t count = 0;
    while ((count = ::read(log, buffer.data(), buffer.size())) > 0) {
        writeAll(report, {buffer.data(), static_cast<std::size_t>(count)});
    }
    ::close(log);
}

void writeReport(int number)
{
    FixedText<kPathBytes + 64> path;
    path.append(crash.folder.text());
    path.append("/crash-");
    appendTime(path);
    path.append(".txt");
    // Two crashes in one second share a report rather than lose one.
    const int report =
        ::open(path.bytes.data(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (report < 0) {
        return;
    }
    writeAll(report, signalName(number));
    writeAll(report, "\n\nStack:\n");
    std::array<void*, kMaximumFrames> frames; // NOLINT(cppcoreguidelines-pro-type-member-init)
    const int count = ::backtrace(frames.data(), kMaximumFrames);
    ::backtrace_symbols_fd(frames.data(), count, report);
    writeAll(report, "\nValues:\n");
    writeAll(report, crash.values[crash.currentValues].text());
    writeAll(report, "\nLog:\n");
    copyLogEnd(report);
    ::fsync(report);
    ::close(report);
}

extern "C" void handleFatalSignal(int number)
{
    const pid_t self = ::gettid();
    pid_t nobody = 0;
    if (crash.reporter.compare_exchange_strong(nobody, self)) {
        writeReport(number);
    } else if (nobody != self) {
        // Another thread writes the report and then ends the program.
        while (true) {
            ::pause();
        }
    }
    // A crash of the report itself comes straight here.
    ::signal(number, SIG_DFL);
    ::raise(number);
}

} // namespace

bool installCrashHandler(const std::filesystem::path& folder, const std::filesystem::path& log)
{
    if (std::max(folder.native().size(), log.native().size()) >= kPathBytes) {
        return false;
    }
    crash.folder = {};
    crash.folder.append(folder.native());
    crash.log = {};
    crash.log.append(log.native());

    // The first call loads a library, which a handler must not.
    std::array<void*, 1> frame{};
    ::backtrace(frame.data(), 1);

    // A stack that overflowed cannot run the handler.
    stack_t stack{};
    stack.ss_sp = crash.stack.data();
    stack.ss_size = crash.stack.size();
    ::sigaltstack(&stack, nullptr);

    struct sigaction action {};
    action.sa_handler = handleFatalSignal;
    action.sa_flags = SA_ONSTACK | SA_NODEFER;
    ::sigemptyset(&action.sa_mask);
    for (const int number : kFatalSignals) {
        ::sigaction(number, &action, nullptr);
    }
    return true;
}

void setCrashReportValues(std::string_view text)
{
    const std::size_t spare = 1 - crash.currentValues;
    crash.values[spare].size = 0;
    crash.values[spare].append(text);
    crash.currentValues = spare;
}

} // namespace lumora::platform
