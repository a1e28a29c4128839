// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "measure.h"

#include <algorithm>
#include <cmath>

namespace lumora::bench {

double Samples::percentile(double part) const
{
    if (values_.empty()) {
        return 0;
    }
    auto sorted = values_;
    std::sort(sorted.begin(), sorted.end());
    const auto place = std::ceil(part * static_cast<double>(sorted.size()));
    return sorted[static_cast<std::size_t>(std::max(place, 1.0)) - 1];
}

} // namespace lumora::bench
