// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "detail/ce_round_progress_view.h"
#include "platform/screens/collection_view.h"

#include <array>
#include <cstddef>
#include <memory>
#include <string>

namespace lumora::detail {

/// A square of the collection: a tense with six lines. Index r of each array
/// is the member of line r + 1.
///
/// The play controls are made the first time the cell is configured and kept
/// for every tense it shows after.
struct VerbCollectionViewCell {
    static constexpr std::size_t kLines = 6;

    std::string titleLabel;
    std::array<std::string, kLines> pronounLabel;
    std::array<std::string, kLines> verbLabel;
    std::array<std::string, kLines> accessibilityLabel;
    std::array<platform::LineStyle, kLines> lineStyle;
    std::array<double, kLines> audioWidthConstraint{};
    std::array<double, kLines> audioPaddingConstraint{};
    std::array<bool, kLines> progressViewPlaceholderHidden{};
    std::array<std::shared_ptr<CERoundProgressView>, kLines> progressView;

    /// What the view draws.
    platform::CollectionCell content() const;
};

} // namespace lumora::detail
