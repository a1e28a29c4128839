// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "detail/verb_collection_view_cell.h"

namespace lumora::detail {

platform::CollectionCell VerbCollectionViewCell::content() const
{
    platform::CollectionCell cell{"Conjugations", titleLabel, {}};
    for (std::size_t line = 0; line < kLines; ++line) {
        cell.rows.push_back({pronounLabel[line],
                             verbLabel[line],
                             audioWidthConstraint[line],
                             audioPaddingConstraint[line],
                             progressViewPlaceholderHidden[line],
                             {progressView[line]},
                             accessibilityLabel[line],
                             lineStyle[line]});
    }
    return cell;
}

} // namespace lumora::detail
