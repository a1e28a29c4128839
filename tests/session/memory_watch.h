// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <string>
#include <vector>

class QQuickWindow;

namespace lumora::session {

/// After so many actions caches are full, and every screen was there once.
inline constexpr std::uint64_t kWarmActions = 1000;

/// Whether a program in use takes more and more memory.
class MemoryWatch {
public:
    /// At a moment that resembles the others: the home screen, nothing open.
    void look(QQuickWindow& window, std::uint64_t action);

    /// Whether each quarter of what was seen after the first thousand actions
    /// has a middle over a hundredth above the one before: what leaks does so
    /// all the time, what is kept once makes one step. False where memory
    /// cannot be looked into.
    bool grows() const;
    std::string summary() const;

    /// By this process now; the sanitizers' memory is not counted.
    static double megabytesInUse();

private:
    bool isCounted() const;
    double megabytesInQuarter(std::size_t quarter) const;

    std::vector<double> megabytes_;
};

} // namespace lumora::session
