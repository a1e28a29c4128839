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
    /// What is asked of it, for example "95 % in 16 ms"; and whether it holds.
    std::string asked;
    std::optional<bool> holds;
    const char* unit = "ms";
};

/// Asks that a figure's median is at most so many times its reference's.
void holdAgainstReference(Figure& figure, double times);

/// One table on a stream, a line as soon as its figure is there.
class Report {
public:
    explicit Report(std::ostream& output) : output_{output} {}

    void section(const std::string& title);
    void add(const Figure& figure);

private:
    std::ostream& output_;
};

} // namespace lumora::bench
