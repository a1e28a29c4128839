// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/machine/clock.h"

#include <chrono>
#include <functional>
#include <utility>
#include <vector>

namespace lumora::support {

/// Stands still until a test moves it.
class FakeClock final : public platform::Clock {
public:
    double secondsSince1970() const override { return now; }
    void runLater(std::chrono::milliseconds delay, std::function<void()> work) override
    {
        waiting_.push_back({now + std::chrono::duration<double>(delay).count(), std::move(work)});
    }

    /// Moves the time on and runs what has come due, the earliest first.
    void advance(std::chrono::milliseconds duration)
    {
        const double end = now + std::chrono::duration<double>(duration).count();
        while (runNext(end)) {
        }
        now = end;
    }

    double now = platform::kReferenceDate;

private:
    struct Work {
        double due = 0;
        std::function<void()> run;
    };

    bool runNext(double end)
    {
        auto next = waiting_.end();
        for (auto work = waiting_.begin(); work != waiting_.end(); ++work) {
            if (work->due <= end && (next == waiting_.end() || work->due < next->due)) {
                next = work;
            }
        }
        if (next == waiting_.end()) {
            return false;
        }
        const Work work = std::move(*next);
        waiting_.erase(next);
        now = work.due;
        work.run();
        return true;
    }

    std::vector<Work> waiting_;
};

} // namespace lumora::support
