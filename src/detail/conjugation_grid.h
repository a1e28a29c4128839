// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/conjugation.h"
#include "data/form_parts.h"
#include "data/tense_table.h"
#include "detail/verb_collection_view_cell.h"
#include "detail/verb_collection_view_header.h"
#include "platform/screens/index_path.h"
#include "platform/screens/table_cell.h"

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace lumora::platform {
class Bundle;
class CrashReporter;
class Device;
class SettingsStore;
} // namespace lumora::platform

namespace lumora::detail {

/// Which verb is shown, and which segment of the mood control is chosen. A
/// segment that is no mood has no tenses.
struct ShownMood {
    /// Not owned; null where no verb is selected.
    const data::Verb* verb = nullptr;
    int segment = 0;
    /// Not owned; null where stems and endings are not marked.
    const data::FormDivisions* divisions = nullptr;
};

/// A form and the ring of its play control.
struct PlayableRow {
    std::shared_ptr<const data::Conjugation> form;
    std::shared_ptr<CERoundProgressView> indicator;
};

/// The tenses of a verb by mood, as a table with a section for each tense and
/// as a collection with a square for each.
///
/// Section 0 of the table is the translation; the tense at position p is
/// section p + 1 of the table and item p of the collection. The grid keeps the
/// rings, one a form, so that a ring stays with its form when the mood changes
/// or the table turns into the collection.
/// What the constructor takes must outlive the object.
class ConjugationGrid {
public:
    ConjugationGrid(const platform::Bundle& bundle, const platform::SettingsStore& settings,
                    const platform::Device& device, platform::CrashReporter& crashReporter);

    static int numberOfSections(ShownMood shown);
    static int numberOfRowsInSection(ShownMood shown, int section);
    std::optional<std::string> titleForHeaderInSection(ShownMood shown, int section) const;
    /// A row without a form is logged and has no content.
    platform::TableCell cellForRow(ShownMood shown, platform::IndexPath path);
    std::optional<PlayableRow> playableRow(ShownMood shown, platform::IndexPath path);

    /// The row of the table with a form; none where the mood does not show it.
    static std::optional<platform::IndexPath> pathOf(ShownMood shown, const data::FormPlace& form);

    static int numberOfItems(ShownMood shown);
    platform::CollectionCell cellForItem(ShownMood shown, int item);
    VerbCollectionViewHeader header(ShownMood shown) const;
    /// `line` is one of the six of the square, from 0.
    std::optional<PlayableRow> playableLine(ShownMood shown, int item, int line);

    /// The forms of the tense at a position, in their order; none where there
    /// is no such tense.
    static const data::ConjugationList& forms(ShownMood shown, int position);
    /// All rows of that tense.
    std::vector<PlayableRow> playableTense(ShownMood shown, int position);

private:
    template <typename Kept>
    using ByMood = std::array<Kept, data::kMoodCount>;
    using Indicators = std::vector<std::shared_ptr<CERoundProgressView>>;

    std::string tenseTitle(const data::TenseBlock& block) const;
    std::string translation(ShownMood shown) const;
    platform::LineStyle lineStyle(ShownMood shown, int position, std::size_t row) const;
    std::optional<PlayableRow> playable(ShownMood shown, int position, int row);
    std::shared_ptr<CERoundProgressView> indicatorFor(int segment, int position, int row);
    VerbCollectionViewCell& collectionCell(int segment, int item);

    const platform::Bundle& bundle_;
    const platform::SettingsStore& settings_;
    const platform::Device& device_;
    platform::CrashReporter& crashReporter_;
    ByMood<std::vector<VerbCollectionViewCell>> cells_;
    /// By position of the tense and row.
    ByMood<std::vector<Indicators>> indicators_;
};

} // namespace lumora::detail
