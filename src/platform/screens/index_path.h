// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace lumora::platform {

/// A row of a table, counted from 0 in both numbers.
struct IndexPath {
    int section = 0;
    int row = 0;

    bool operator==(const IndexPath&) const = default;
};

} // namespace lumora::platform
