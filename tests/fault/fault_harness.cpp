// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "fault/fault_harness.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <new>
#include <stdexcept>
#include <string_view>
#include <system_error>
#include <type_traits>
#include <utility>

#include <dirent.h>
#include <dlfcn.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lumora::fault {

namespace {

/// What a run and who waits for it both see.
struct Report {
    std::size_t calls = 0;
    char met[512] = "";
};

struct Run {
    const std::vector<std::filesystem::path>& watched;
    std::optional<Fault> fault;
    Report& report;
};

/// In the process of a run only; the replaced functions can be handed nothing.
const Run* current = nullptr;

/// The files that a call works on.
struct Place {
    // NOLINTBEGIN(google-explicit-constructor): as the functions are handed it.
    Place(const char* path) : first{path} {}
    Place(int descriptor) : first{pathOf(descriptor)} {}
    Place(DIR* folder) : Place{::dirfd(folder)} {}
    // NOLINTEND(google-explicit-constructor)
    Place(int folder, const char* path) : first{*path == '/' ? path : pathOf(folder) + '/' + path}
    {}
    Place(const char* from, const char* to) : first{from}, second{to} {}

    static std::string pathOf(int descriptor)
    {
        std::error_code gone;
        return std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(descriptor), gone)
            .string();
    }

    std::string first;
    std::string second;
};

bool isWatched(const std::string& path)
{
    return std::any_of(current->watched.begin(), current->watched.end(), [&](const auto& folder) {
        return path == folder.native() || path.starts_with(folder.native() + '/');
    });
}

/// The code with which the call has to fail; 0 when it may go on.
int errorFor(const char* name, const Place& place, bool writes)
{
    auto& report = current->report;
    const auto& fault = current->fault;
    const bool over = fault && report.calls >= fault->call;
    if ((over && !fault->lasts) || !(isWatched(place.first) || isWatched(place.second))) {
        return 0;
    }
    ++report.calls;
    if (over) {
        return writes ? *fault->error : 0;
    }
    if (!fault || report.calls != fault->call) {
        return 0;
    }
    const auto met = std::string{name} + ' ' + place.first;
    met.copy(report.met, sizeof report.met - 1);
    if (!fault->error) {
        ::kill(::getpid(), SIGKILL);
    }
    return *fault->error;
}

/// The library's own function, or a failure of it.
template <typename Result, typename MakePlace, typename... Arguments>
Result called(const char* name, bool writes, MakePlace makePlace, Arguments... arguments)
{
    using Function = Result (*)(Arguments...);
    // By its name, since functions of different names share this code.
    const auto original = reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
    const int before = errno;
    if (const int error = current == nullptr ? 0 : errorFor(name, makePlace(), writes)) {
        if (std::string_view{name} == "close") {
            // Closing frees the number even when it fails.
            original(arguments...);
        }
        errno = error;
        if constexpr (std::is_pointer_v<Result>) {
            return nullptr;
        } else {
            return -1;
        }
    }
    errno = before;
    return original(arguments...);
}

} // namespace

// Under a C++ name of its own each, so that it need not agree with the header:
// what takes "..." there takes what stands for it here, which Linux passes in
// the same registers.
#define REPLACE(result, name, writes, parameters, place, ...)                                      \
    extern "C" result replaced_##name parameters __asm__(#name);                                   \
    extern "C" result replaced_##name parameters                                                   \
    {                                                                                              \
        return called<result>(                                                                     \
            #name, writes, [&] { return Place place; }, __VA_ARGS__);                              \
    }

REPLACE(int, open, true, (const char* path, int flags, mode_t mode), {path}, path, flags, mode)
REPLACE(int, open64, true, (const char* path, int flags, mode_t mode), {path}, path, flags, mode)
REPLACE(int, openat, true, (int folder, const char* path, int flags, mode_t mode), (folder, path),
        folder, path, flags, mode)
REPLACE(int, access, false, (const char* path, int mode), {path}, path, mode)
REPLACE(int, stat, false, (const char* path, void* into), {path}, path, into)
REPLACE(int, stat64, false, (const char* path, void* into), {path}, path, into)
REPLACE(int, lstat, false, (const char* path, void* into), {path}, path, into)
REPLACE(int, lstat64, false, (const char* path, void* into), {path}, path, into)
REPLACE(int, mkdir, true, (const char* path, mode_t mode), {path}, path, mode)
REPLACE(int, unlink, false, (const char* path), {path}, path)
REPLACE(int, rename, true, (const char* from, const char* to), (from, to), from, to)
REPLACE(int, close, false, (int file), {file}, file)
REPLACE(int, fchmod, false, (int file, mode_t mode), {file}, file, mode)
REPLACE(int, fcntl64, false, (int file, int command, void* value), {file}, file, command, value)
REPLACE(int, fsync, true, (int file), {file}, file)
REPLACE(int, fdatasync, true, (int file), {file}, file)
REPLACE(int, fstat64, false, (int file, void* into), {file}, file, into)
REPLACE(int, ftruncate64, true, (int file, off_t size), {file}, file, size)
REPLACE(ssize_t, read, false, (int file, void* into, std::size_t size), {file}, file, into, size)
REPLACE(ssize_t, write, true, (int file, const void* from, std::size_t size), {file}, file, from,
        size)
REPLACE(ssize_t, pread64, false, (int file, void* into, std::size_t size, off_t place), {file},
        file, into, size, place)
REPLACE(ssize_t, pwrite64, true, (int file, const void* from, std::size_t size, off_t place),
        {file}, file, from, size, place)
REPLACE(DIR*, fdopendir, false, (int folder), {folder}, folder)
REPLACE(dirent*, readdir, false, (DIR * folder), {folder}, folder)

FaultHarness::FaultHarness(std::vector<std::filesystem::path> watched)
    : watched_{std::move(watched)}
{}

Outcome FaultHarness::run(const std::function<int()>& work, const std::optional<Fault>& fault) const
{
    void* const shared =
        ::mmap(nullptr, sizeof(Report), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (shared == MAP_FAILED) {
        throw std::runtime_error("no memory to share with a process");
    }
    auto& report = *new (shared) Report;
    const pid_t process = ::fork();
    if (process == 0) {
        const Run run{watched_, fault, report};
        current = &run;
        ::_exit(work());
    }
    int status = 0;
    if (process < 0 || ::waitpid(process, &status, 0) != process) {
        throw std::runtime_error("no process can be made");
    }
    Outcome outcome{report.calls, WIFEXITED(status) ? WEXITSTATUS(status) : -1, report.met};
    ::munmap(shared, sizeof(Report));
    return outcome;
}

} // namespace lumora::fault
