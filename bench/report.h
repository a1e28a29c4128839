// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "measure.h"

#include <iosfwd>
#include <optional>
#include <string>

namespace lumora::bench {

/// What was measured and what it is held against, in the same unit and from
/// the same run.
struct Figure {
    std::string what;
    Samples own;
    std::string reference;
    Samples referenceSamples;
    /// What is asked of it, for example "1.5 times it"; and whether it holds.
    std::string asked;
    std::optional<bool> holds;
    const char* unit = "ms";
};

/// The most that a figure may be: its median and its 95th percentile as parts of
/// its reference's. A machine that is slow or busy is so for both, which no limit
/// in milliseconds would know. What a line of code says was measured are such parts,
/// from the lowest to the highest of several runs, on a machine of two cores that
/// compiled as well; a limit leaves room for noise above them.
struct Limits {
    double median = 0;
    double p95 = 0;
};
void holdAgainstReference(Figure& figure, const Limits& limits);

/// One table on a stream, a line as soon as its figure is there.
class Report {
public:
    explicit Report(std::ostream& output) : output_{output} {}

    void section(const std::string& title);
    void add(const Figure& figure);
    /// Whether all figures so far hold what is asked of them.
    bool holds() const { return holds_; }

private:
    std::ostream& output_;
    bool holds_ = true;
};

} // namespace lumora::bench
