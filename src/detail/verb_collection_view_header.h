// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/collection_view.h"

#include <string>

namespace lumora::detail {

/// What stands above the squares of a verb: its name and its translation.
struct VerbCollectionViewHeader {
    std::string titleLabel;

    /// What the view draws.
    platform::CollectionHeader content() const { return {"Header", titleLabel}; }
};

} // namespace lumora::detail
