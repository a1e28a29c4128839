// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "detail/conjugation_grid.h"

#include "detail/form_sheet.h"
#include "detail/form_style.h"
#include "platform/machine/bundle.h"
#include "platform/machine/crash_reporter.h"
#include "text/pronoun.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace lumora::detail {

namespace {

// The "other" table keeps a third, empty section.
constexpr std::array<int, data::kMoodCount> kTableSections{9, 5, 4, 4};
constexpr std::array<int, data::kMoodCount> kCollectionItems{8, 4, 3, 2};

constexpr platform::Color kPlayTint{1.0 / 255, 85.0 / 255, 179.0 / 255, 1};
constexpr double kAudioPadding = 8;
constexpr double kAudioWidth = 30;

int countFor(const std::array<int, data::kMoodCount>& counts, ShownMood shown)
{
    const bool isMood = shown.segment >= 0 && shown.segment < data::kMoodCount;
    return shown.verb != nullptr && isMood ? counts[static_cast<std::size_t>(shown.segment)] : 0;
}

/// The mood whose rings belong to `segment`.
std::size_t moodOf(int segment)
{
    return static_cast<std::size_t>(std::clamp(segment, 0, data::kMoodCount - 1));
}

/// Null where no verb is shown, or the mood has no tense at that position.
const data::TenseBlock* shownBlock(ShownMood shown, int position)
{
    return shown.verb == nullptr ? nullptr : data::blockAt(shown.segment, position);
}

std::string spokenName(const data::Conjugation& form)
{
    return text::beforeForm(form.pronoun) + form.verb;
}

std::shared_ptr<CERoundProgressView> makePlayIndicator()
{
    auto indicator = std::make_shared<CERoundProgressView>();
    indicator->setTintColor(kPlayTint);
    return indicator;
}

} // namespace

ConjugationGrid::ConjugationGrid(const platform::Bundle& bundle,
                                 const platform::SettingsStore& settings,
                                 const platform::Device& device,
                                 platform::CrashReporter& crashReporter)
    : bundle_{bundle}, settings_{settings}, device_{device}, crashReporter_{crashReporter}
{}

const data::ConjugationList& ConjugationGrid::forms(ShownMood shown, int position)
{
    static const data::ConjugationList kNone;
    const auto* block = shownBlock(shown, position);
    return block == nullptr ? kNone : shown.verb->*(block->tense.forms);
}

int ConjugationGrid::numberOfSections(ShownMood shown)
{
    return countFor(kTableSections, shown);
}

int ConjugationGrid::numberOfRowsInSection(ShownMood shown, int section)
{
    return section == 0 ? 1 : static_cast<int>(forms(shown, section - 1).size());
}

std::string ConjugationGrid::tenseTitle(const data::TenseBlock& block) const
{
    return data::tenseTitle(block.titleKey, bundle_, settings_);
}

std::optional<std::string> ConjugationGrid::titleForHeaderInSection(ShownMood shown,
                                                                    int section) const
{
    const auto* block = shownBlock(shown, section - 1);
    return block == nullptr ? std::nullopt : std::optional{tenseTitle(*block)};
}

std::string ConjugationGrid::translation(ShownMood shown) const
{
    return shown.verb == nullptr ? std::string{} : shown.verb->translation(settings_, device_);
}

platform::LineStyle ConjugationGrid::lineStyle(ShownMood shown, int position, std::size_t row) const
{
    const auto* block = shownBlock(shown, position);
    const auto& rows = forms(shown, position);
    if (block == nullptr || row >= rows.size()) {
        return {};
    }
    auto hints = hintsOf(block->tense.identifier, rows, [this](std::string_view key) {
        return data::tenseTitle(key, bundle_, settings_);
    });
    auto lineStyle = std::move(hints[row]);
    lineStyle.joined = text::isElided(rows[row]->pronoun);
    if (shown.divisions != nullptr) {
        auto [runs, noteKey] = markedForm(*rows[row], *shown.divisions);
        lineStyle.runs = std::move(runs);
        if (!noteKey.empty()) {
            lineStyle.accessibilityHint += lineStyle.accessibilityHint.empty() ? "" : ", ";
            lineStyle.accessibilityHint += platform::localizedString(bundle_, noteKey);
        }
    }
    return lineStyle;
}

platform::TableCell ConjugationGrid::cellForRow(ShownMood shown, platform::IndexPath path)
{
    platform::TableCell cell;
    cell.selectable = false;
    if (path.section == 0) {
        cell.reuseIdentifier = "CellVerb";
        cell.text = translation(shown);
        return cell;
    }
    cell.reuseIdentifier = "CellConjugation";
    const auto row = playableRow(shown, path);
    if (!row) {
        crashReporter_.logWithFormat(
            "Unable to find conjugation for table row %@",
            {"[" + std::to_string(path.section) + ", " + std::to_string(path.row) + "]"});
        return cell;
    }
    cell.text = row->form->pronoun;
    cell.detailText = row->form->verb;
    cell.lineStyle = lineStyle(shown, path.section - 1, static_cast<std::size_t>(path.row));
    cell.accessibilityLabel = spokenName(*row->form);
    cell.control = platform::PlayControl{row->indicator};
    return cell;
}

std::optional<PlayableRow> ConjugationGrid::playable(ShownMood shown, int position, int row)
{
    if (shown.verb == nullptr) {
        return std::nullopt;
    }
    auto form = formAt(*shown.verb, {shown.segment, position, row});
    if (form == nullptr) {
        return std::nullopt;
    }
    return PlayableRow{std::move(form), indicatorFor(shown.segment, position, row)};
}

std::optional<PlayableRow> ConjugationGrid::playableRow(ShownMood shown, platform::IndexPath path)
{
    return playable(shown, path.section - 1, path.row);
}

std::vector<PlayableRow> ConjugationGrid::playableTense(ShownMood shown, int position)
{
    std::vector<PlayableRow> rows;
    while (auto row = playable(shown, position, static_cast<int>(rows.size()))) {
        rows.push_back(*std::move(row));
    }
    return rows;
}

std::shared_ptr<CERoundProgressView> ConjugationGrid::indicatorFor(int segment, int position,
                                                                   int row)
{
    const auto at = static_cast<std::size_t>(std::max(position, 0));
    auto& positions = indicators_[moodOf(segment)];
    if (positions.size() <= at) {
        positions.resize(at + 1);
    }
    auto& indicators = positions[at];
    while (indicators.size() <= static_cast<std::size_t>(row)) {
        indicators.push_back(makePlayIndicator());
    }
    return indicators[static_cast<std::size_t>(row)];
}

std::optional<platform::IndexPath> ConjugationGrid::pathOf(ShownMood shown,
                                                           const data::FormPlace& form)
{
    const auto position = data::positionOfTense(form.tense);
    if (!position || position->segment != shown.segment) {
        return std::nullopt;
    }
    const auto& rows = forms(shown, static_cast<int>(position->block));
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const auto& candidate) {
        return candidate->order == form.order;
    });
    if (found == rows.end()) {
        return std::nullopt;
    }
    return platform::IndexPath{static_cast<int>(position->block) + 1,
                               static_cast<int>(found - rows.begin())};
}

int ConjugationGrid::numberOfItems(ShownMood shown)
{
    return countFor(kCollectionItems, shown);
}

VerbCollectionViewCell& ConjugationGrid::collectionCell(int segment, int item)
{
    auto& cells = cells_[moodOf(segment)];
    const auto index = static_cast<std::size_t>(std::max(item, 0));
    if (cells.size() <= index) {
        cells.resize(index + 1);
    }
    auto& cell = cells[index];
    for (std::size_t line = 0; line < VerbCollectionViewCell::kLines; ++line) {
        if (!cell.progressView[line]) {
            cell.progressView[line] = indicatorFor(segment, item, static_cast<int>(line));
        }
    }
    return cell;
}

platform::CollectionCell ConjugationGrid::cellForItem(ShownMood shown, int item)
{
    auto& cell = collectionCell(shown.segment, item);
    const auto* block = shownBlock(shown, item);
    const auto& rows = forms(shown, item);

    cell.audioWidthConstraint.fill(0);
    cell.audioPaddingConstraint.fill(0);
    cell.titleLabel = block == nullptr ? std::string{} : tenseTitle(*block);
    for (std::size_t line = 0; line < VerbCollectionViewCell::kLines; ++line) {
        const bool filled = line < rows.size();
        cell.pronounLabel[line] = filled ? rows[line]->pronoun : " ";
        cell.verbLabel[line] = filled ? rows[line]->verb : " ";
        cell.lineStyle[line] = lineStyle(shown, item, line);
        cell.accessibilityLabel[line] = filled ? spokenName(*rows[line]) : std::string{};
        cell.progressViewPlaceholderHidden[line] = !filled;
        if (filled) {
            cell.audioPaddingConstraint[line] = kAudioPadding;
            cell.audioWidthConstraint[line] = kAudioWidth;
        }
    }
    return cell.content();
}

VerbCollectionViewHeader ConjugationGrid::header(ShownMood shown) const
{
    if (shown.verb == nullptr) {
        return {};
    }
    return {shown.verb->french + " (" + translation(shown) + ")"};
}

std::optional<PlayableRow> ConjugationGrid::playableLine(ShownMood shown, int item, int line)
{
    if (line < 0 || static_cast<std::size_t>(line) >= VerbCollectionViewCell::kLines) {
        return std::nullopt;
    }
    return playable(shown, item, line);
}

} // namespace lumora::detail
