// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace lumora::fault {

/// What happens to one call of a run.
struct Fault {
    /// Which call on the watched folders, counted from 1.
    std::size_t call = 0;
    /// The errno code with which the call fails; none: the process is killed
    /// before the call is carried out.
    std::optional<int> error;
    /// Every later call that writes fails alike, as on a disk that stays full.
    bool lasts = false;
};

struct Outcome {
    /// The calls on the watched folders, up to the end of the run or a fault
    /// that does not last.
    std::size_t calls = 0;
    /// What the work returned; -1 when it was killed.
    int status = -1;
    /// The call that the fault met, for example "fsync /tmp/x/verbs.db".
    std::string met;
};

/// Runs work in a process of its own and lets one call of the C library that
/// touches a watched folder go wrong: one that names a file in it, or works on
/// a descriptor of one. The library's file functions are replaced in the whole
/// test program for this, and do what they always do outside of such a run.
class FaultHarness {
public:
    explicit FaultHarness(std::vector<std::filesystem::path> watched);

    /// The process is a fork of this one and ends without running anything
    /// after `work`, which starts no threads. Throws std::runtime_error where
    /// no process can be made.
    Outcome run(const std::function<int()>& work, const std::optional<Fault>& fault = {}) const;

private:
    std::vector<std::filesystem::path> watched_;
};

} // namespace lumora::fault
