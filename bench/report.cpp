// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "report.h"

#include <fmt/format.h>

#include <ostream>

namespace lumora::bench {

namespace {

/// Three digits that count.
std::string number(double value)
{
    return fmt::format("{:.{}f}", value, value >= 100 ? 0 : value >= 10 ? 1 : value >= 1 ? 2 : 3);
}

/// "1/35" or "1.5 times".
std::string part(double of)
{
    return of < 1 ? fmt::format("1/{:.3g}", 1 / of) : fmt::format("{:.3g} times", of);
}

} // namespace

void holdAgainstReference(Figure& figure, const Limits& limits)
{
    figure.asked = fmt::format("{}, 95 % {} of it", part(limits.median), part(limits.p95));
    figure.holds = figure.own.median() <= limits.median * figure.referenceSamples.median() &&
                   figure.own.p95() <= limits.p95 * figure.referenceSamples.p95();
}

void Report::section(const std::string& title)
{
    output_ << fmt::format("\n{:<43}{:>8}{:>8}       {:<31}{:>8}{:>8}{:>7}   {}\n", title, "median",
                           "95 %", "beside it", "median", "95 %", "ratio", "asked")
            << std::string(141, '-') << std::endl;
}

void Report::add(const Figure& figure)
{
    auto line = fmt::format("{:<43}{:>8}{:>8} {:<5} ", figure.what, number(figure.own.median()),
                            number(figure.own.p95()), figure.unit);
    if (figure.referenceSamples.count() > 0) {
        line += fmt::format("{:<31}{:>8}{:>8}{:>7.2f}   ", figure.reference,
                            number(figure.referenceSamples.median()),
                            number(figure.referenceSamples.p95()),
                            figure.own.median() / figure.referenceSamples.median());
    } else {
        line += fmt::format("{:<57}", "");
    }
    line += figure.asked;
    if (figure.holds) {
        line += *figure.holds ? ": holds" : ": MISSED";
        holds_ = holds_ && *figure.holds;
    }
    output_ << line << std::endl;
}

} // namespace lumora::bench
