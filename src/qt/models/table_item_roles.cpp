// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/base/text_conversion.h"
#include "qt/models/table_item_model.h"

#include <algorithm>

namespace lumora::qt {

using platform::TableCell;

/// How a role is called in QML and where its value comes from: from the model
/// or from the controller's cell.
struct TableItemModel::RoleEntry {
    Role role;
    const char* name;
    QVariant (TableItemModel::*ofRow)(int row) const;
    QVariant (*ofCell)(const TableCell& cell, IndicatorPool& indicators);
};

namespace {

template <std::string TableCell::*Text>
QVariant textOf(const TableCell& cell, IndicatorPool& /*indicators*/)
{
    return toQString(cell.*Text);
}

QVariant accessibleNameOf(const TableCell& cell, IndicatorPool& /*indicators*/)
{
    return toQString(cell.accessibilityLabel.empty() ? cell.text : cell.accessibilityLabel);
}

QVariant lineStyleOf(const TableCell& cell, IndicatorPool& /*indicators*/)
{
    return QVariant::fromValue(toValue(cell.lineStyle, cell.detailText));
}

QVariant selectableOf(const TableCell& cell, IndicatorPool& /*indicators*/)
{
    return cell.selectable;
}

QVariant disclosureOf(const TableCell& cell, IndicatorPool& /*indicators*/)
{
    return cell.accessory == platform::CellAccessory::DisclosureIndicator;
}

QVariant controlKindOf(const TableCell& cell, IndicatorPool& /*indicators*/)
{
    // The variant's alternatives stand in the order of ControlKind.
    return static_cast<int>(cell.control.index());
}

template <typename Control>
Control controlOf(const TableCell& cell)
{
    const auto* control = std::get_if<Control>(&cell.control);
    return control == nullptr ? Control{} : *control;
}

QVariant switchOnOf(const TableCell& cell, IndicatorPool& /*indicators*/)
{
    return controlOf<platform::SwitchControl>(cell).on;
}

QVariant segmentTitlesOf(const TableCell& cell, IndicatorPool& /*indicators*/)
{
    return toQStringList(controlOf<platform::SegmentedControl>(cell).titles);
}

QVariant selectedSegmentOf(const TableCell& cell, IndicatorPool& /*indicators*/)
{
    return controlOf<platform::SegmentedControl>(cell).selected;
}

QVariant indicatorOf(const TableCell& cell, IndicatorPool& indicators)
{
    return QVariant::fromValue(
        indicators.sourceFor(controlOf<platform::PlayControl>(cell).indicator));
}

} // namespace

std::span<const TableItemModel::RoleEntry> TableItemModel::roles()
{
    using Model = TableItemModel;
    static constexpr RoleEntry kRoles[] = {
        {KindRole, "kind", &Model::kindOfRow, nullptr},
        {SectionRole, "section", &Model::sectionOfRow, nullptr},
        {RowRole, "row", &Model::rowInSection, nullptr},
        {TitleRole, "title", &Model::titleOfRow, nullptr},
        {SelectedRole, "selected", &Model::isSelected, nullptr},
        {LastInSectionRole, "lastInSection", &Model::isLastInSection, nullptr},
        {CanEditRole, "canEdit", &Model::canEdit, nullptr},
        {AloneRole, "alone", &Model::isAlone, nullptr},
        {TextRole, "text", nullptr, textOf<&TableCell::text>},
        {NoteRole, "note", nullptr, textOf<&TableCell::note>},
        {DetailTextRole, "detailText", nullptr, textOf<&TableCell::detailText>},
        {ImageRole, "image", nullptr, textOf<&TableCell::image>},
        {IdentifierRole, "identifier", nullptr, textOf<&TableCell::accessibilityIdentifier>},
        {AccessibleNameRole, "accessibleName", nullptr, accessibleNameOf},
        {ReuseIdentifierRole, "reuseIdentifier", nullptr, textOf<&TableCell::reuseIdentifier>},
        {LineStyleRole, "lineStyle", nullptr, lineStyleOf},
        {SelectableRole, "selectable", nullptr, selectableOf},
        {DisclosureRole, "disclosure", nullptr, disclosureOf},
        {ControlRole, "control", nullptr, controlKindOf},
        {SwitchOnRole, "switchOn", nullptr, switchOnOf},
        {SegmentTitlesRole, "segmentTitles", nullptr, segmentTitlesOf},
        {SelectedSegmentRole, "selectedSegment", nullptr, selectedSegmentOf},
        {IndicatorRole, "indicatorSource", nullptr, indicatorOf},
    };
    return kRoles;
}

QHash<int, QByteArray> TableItemModel::roleNames() const
{
    QHash<int, QByteArray> names;
    for (const auto& entry : roles()) {
        names.insert(entry.role, entry.name);
    }
    return names;
}

QVariant TableItemModel::data(const QModelIndex& index, int role) const
{
    // What headers and footers answer, so that one delegate with typed
    // properties serves every kind.
    static const TableCell kNoCell = [] {
        TableCell cell;
        cell.selectable = false;
        return cell;
    }();

    const auto all = roles();
    const auto entry = std::find_if(all.begin(), all.end(),
                                    [&](const RoleEntry& each) { return each.role == role; });
    if (entry == all.end() || !checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    if (entry->ofRow != nullptr) {
        return (this->*entry->ofRow)(index.row());
    }
    const auto path = stale_ ? std::nullopt : cellPath(index.row());
    return entry->ofCell(path ? cell(*path) : kNoCell, indicators_);
}

} // namespace lumora::qt
