// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "fault/fault_harness.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <fstream>
#include <map>
#include <stdexcept>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lumora::fault {

namespace {

using Registers = user_regs_struct;

constexpr int kNone = -1;
constexpr int kSyscallStop = SIGTRAP | 0x80;

/// Where a system call names files.
struct Call {
    const char* name;
    int path = kNone;
    /// Of the folder that the path starts from, or of the file.
    int descriptor = kNone;
    bool writes = false;
    int secondPath = kNone;
    int secondDescriptor = kNone;
};

const std::map<long, Call>& calls()
{
    static const std::map<long, Call> kCalls{
        {SYS_open, {"open", 0, kNone, true}},
        {SYS_openat, {"openat", 1, 0, true}},
        {SYS_creat, {"creat", 0, kNone, true}},
        {SYS_stat, {"stat", 0}},
        {SYS_lstat, {"lstat", 0}},
        {SYS_newfstatat, {"newfstatat", 1, 0}},
        {SYS_statx, {"statx", 1, 0}},
        {SYS_access, {"access", 0}},
        {SYS_faccessat, {"faccessat", 1, 0}},
        {SYS_faccessat2, {"faccessat2", 1, 0}},
        {SYS_readlink, {"readlink", 0}},
        {SYS_readlinkat, {"readlinkat", 1, 0}},
        {SYS_mkdir, {"mkdir", 0, kNone, true}},
        {SYS_mkdirat, {"mkdirat", 1, 0, true}},
        {SYS_rmdir, {"rmdir", 0}},
        {SYS_unlink, {"unlink", 0}},
        {SYS_unlinkat, {"unlinkat", 1, 0}},
        {SYS_rename, {"rename", 0, kNone, true, 1}},
        {SYS_renameat, {"renameat", 1, 0, true, 3, 2}},
        {SYS_renameat2, {"renameat2", 1, 0, true, 3, 2}},
        {SYS_link, {"link", 0, kNone, true, 1}},
        {SYS_symlink, {"symlink", 1, kNone, true}},
        {SYS_chmod, {"chmod", 0}},
        {SYS_fchmodat, {"fchmodat", 1, 0}},
        {SYS_chown, {"chown", 0}},
        {SYS_truncate, {"truncate", 0, kNone, true}},
        {SYS_statfs, {"statfs", 0}},
        {SYS_read, {"read", kNone, 0}},
        {SYS_readv, {"readv", kNone, 0}},
        {SYS_pread64, {"pread64", kNone, 0}},
        {SYS_write, {"write", kNone, 0, true}},
        {SYS_writev, {"writev", kNone, 0, true}},
        {SYS_pwrite64, {"pwrite64", kNone, 0, true}},
        {SYS_copy_file_range, {"copy_file_range", kNone, 0, true, kNone, 2}},
        {SYS_sendfile, {"sendfile", kNone, 0, true, kNone, 1}},
        {SYS_fsync, {"fsync", kNone, 0, true}},
        {SYS_fdatasync, {"fdatasync", kNone, 0, true}},
        {SYS_ftruncate, {"ftruncate", kNone, 0, true}},
        {SYS_fallocate, {"fallocate", kNone, 0, true}},
        {SYS_fchmod, {"fchmod", kNone, 0}},
        {SYS_fchown, {"fchown", kNone, 0}},
        {SYS_fstat, {"fstat", kNone, 0}},
        {SYS_fstatfs, {"fstatfs", kNone, 0}},
        {SYS_lseek, {"lseek", kNone, 0}},
        {SYS_fcntl, {"fcntl", kNone, 0}},
        {SYS_flock, {"flock", kNone, 0}},
        {SYS_ioctl, {"ioctl", kNone, 0}},
        {SYS_getdents64, {"getdents64", kNone, 0}},
        {SYS_mmap, {"mmap", kNone, 4}},
        {SYS_close, {"close", kNone, 0}},
    };
    return kCalls;
}

long argument(const Registers& registers, int place)
{
    const std::array values{registers.rdi, registers.rsi, registers.rdx,
                            registers.r10, registers.r8,  registers.r9};
    return static_cast<long>(values.at(static_cast<std::size_t>(place)));
}

std::string linkTarget(const std::string& link)
{
    std::error_code gone;
    return std::filesystem::read_symlink(link, gone).string();
}

std::string readText(pid_t process, long address)
{
    std::ifstream memory{"/proc/" + std::to_string(process) + "/mem", std::ios::binary};
    std::string text;
    std::getline(memory.seekg(address), text, '\0');
    return text;
}

/// The absolute path of a file that a call names by path, descriptor or both.
std::string pathOf(pid_t process, const Registers& registers, int path, int descriptor)
{
    const std::string links = "/proc/" + std::to_string(process);
    auto text = path == kNone ? std::string{} : readText(process, argument(registers, path));
    if (text.starts_with('/')) {
        return text;
    }
    const int number =
        descriptor == kNone ? AT_FDCWD : static_cast<int>(argument(registers, descriptor));
    const auto folder =
        linkTarget(number == AT_FDCWD ? links + "/cwd" : links + "/fd/" + std::to_string(number));
    return text.empty() ? folder : folder + '/' + text;
}

/// A process that stops at every system call. Killed at the end of the scope
/// unless it has ended.
class TracedProcess {
public:
    explicit TracedProcess(const std::function<int()>& work) : id_{::fork()}
    {
        if (id_ == 0) {
            if (::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) {
                ::_exit(1);
            }
            ::raise(SIGSTOP);
            ::_exit(work());
        }
        if (!waitForStop() || ::ptrace(PTRACE_SETOPTIONS, id_, nullptr,
                                       PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL) != 0) {
            throw std::runtime_error("a process may not trace another here: the faults of a disk "
                                     "cannot be tried");
        }
    }
    TracedProcess(const TracedProcess&) = delete;
    TracedProcess& operator=(const TracedProcess&) = delete;
    ~TracedProcess()
    {
        if (!ended_) {
            kill();
        }
    }

    pid_t id() const { return id_; }

    /// Goes on to the next end of a half of a system call; false when the
    /// process has ended.
    bool step()
    {
        int signal = 0;
        while (::ptrace(PTRACE_SYSCALL, id_, nullptr, signal) == 0 && waitForStop()) {
            if (WSTOPSIG(status_) == kSyscallStop) {
                return true;
            }
            signal = WSTOPSIG(status_) == SIGSTOP ? 0 : WSTOPSIG(status_);
        }
        return false;
    }

    Registers registers() const
    {
        Registers registers{};
        ::ptrace(PTRACE_GETREGS, id_, nullptr, &registers);
        return registers;
    }
    void setRegisters(const Registers& registers) const
    {
        ::ptrace(PTRACE_SETREGS, id_, nullptr, &registers);
    }

    void kill()
    {
        ::kill(id_, SIGKILL);
        while (!ended_ && waitForStop()) {
            ::ptrace(PTRACE_CONT, id_, nullptr, nullptr);
        }
    }

    /// Lets it run to its end unwatched.
    void release()
    {
        ::ptrace(PTRACE_DETACH, id_, nullptr, nullptr);
        waitForStop();
    }

    /// -1 when a signal ended it.
    int exitStatus() const { return WIFEXITED(status_) ? WEXITSTATUS(status_) : -1; }

private:
    bool waitForStop()
    {
        if (::waitpid(id_, &status_, 0) != id_) {
            return false;
        }
        ended_ = !WIFSTOPPED(status_);
        return !ended_;
    }

    pid_t id_;
    int status_ = 0;
    bool ended_ = false;
};

/// Lets the call at whose beginning the process stands fail.
bool failCall(TracedProcess& process, int error)
{
    auto registers = process.registers();
    // Closing frees the number even when it fails.
    if (registers.orig_rax != SYS_close) {
        registers.orig_rax = ~0ULL;
        process.setRegisters(registers);
    }
    if (!process.step()) {
        return false;
    }
    registers = process.registers();
    registers.rax = static_cast<unsigned long long>(-error);
    process.setRegisters(registers);
    return true;
}

} // namespace

FaultHarness::FaultHarness(std::vector<std::filesystem::path> watched)
    : watched_{std::move(watched)}
{}

bool FaultHarness::isWatched(const std::string& path) const
{
    return std::any_of(watched_.begin(), watched_.end(), [&](const auto& folder) {
        return path == folder.native() || path.starts_with(folder.native() + '/');
    });
}

Outcome FaultHarness::run(const std::function<int()>& work, const std::optional<Fault>& fault) const
{
    Outcome outcome;
    TracedProcess process{work};
    while (process.step()) {
        const auto registers = process.registers();
        const auto found = calls().find(static_cast<long>(registers.orig_rax));
        bool touches = false;
        if (found != calls().end()) {
            const auto& call = found->second;
            auto path = pathOf(process.id(), registers, call.path, call.descriptor);
            touches = isWatched(path);
            if (!touches && (call.secondPath != kNone || call.secondDescriptor != kNone)) {
                path = pathOf(process.id(), registers, call.secondPath, call.secondDescriptor);
                touches = isWatched(path);
            }
            outcome.calls += touches ? 1 : 0;
            const bool first = fault && touches && outcome.calls == fault->call;
            if (first) {
                outcome.met = std::string{call.name} + ' ' + path;
            }
            if (first && !fault->error) {
                process.kill();
                return outcome;
            }
            if (first ||
                (fault && fault->lasts && touches && call.writes && outcome.calls > fault->call)) {
                if (!failCall(process, *fault->error)) {
                    break;
                }
                if (!fault->lasts) {
                    process.release();
                    break;
                }
                continue;
            }
        }
        // The other half of the call.
        if (!process.step()) {
            break;
        }
    }
    outcome.status = process.exitStatus();
    return outcome;
}

} // namespace lumora::fault
