// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>
#include <cstddef>
#include <utility>
#include <vector>

namespace lumora::bench {

/// The same thing measured again and again.
class Samples {
public:
    void add(double value) { values_.push_back(value); }
    std::size_t count() const { return values_.size(); }
    /// The value that this part of all values does not exceed; 0 for none.
    double percentile(double part) const;
    double median() const { return percentile(0.5); }
    double p95() const { return percentile(0.95); }

private:
    std::vector<double> values_;
};

class Stopwatch {
public:
    double milliseconds() const
    {
        return std::chrono::duration<double, std::milli>(Clock::now() - begin_).count();
    }

private:
    using Clock = std::chrono::steady_clock;
    Clock::time_point begin_ = Clock::now();
};

template <typename Work>
double millisecondsOf(Work&& work)
{
    const Stopwatch watch;
    std::forward<Work>(work)();
    return watch.milliseconds();
}

/// Keeps the compiler from removing a computation whose result is not used.
template <typename Value>
void use(const Value& value)
{
    asm volatile("" : : "g"(&value) : "memory");
}

} // namespace lumora::bench
