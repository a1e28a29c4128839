// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/models/table_item_model.h"

#include "qt/base/color_conversion.h"
#include "qt/base/text_conversion.h"

#include <QPointer>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace lumora::qt {

using platform::IndexPath;
using platform::TableCell;

namespace {

std::optional<QString> optionalText(const std::optional<std::string>& text)
{
    return text ? std::optional{toQString(*text)} : std::nullopt;
}

/// Counts a call to the controller while it runs.
class SourceCall {
public:
    explicit SourceCall(int& depth) : depth_{depth} { ++depth_; }
    ~SourceCall() { --depth_; }
    SourceCall(const SourceCall&) = delete;
    SourceCall& operator=(const SourceCall&) = delete;

private:
    int& depth_;
};

} // namespace

TableItemModel::TableItemModel(platform::TableDataSource& source, QObject* parent)
    : QAbstractListModel{parent}, source_{source}
{}

int TableItemModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant TableItemModel::kindOfRow(int row) const
{
    return static_cast<int>(rows_[static_cast<std::size_t>(row)].kind);
}

QVariant TableItemModel::sectionOfRow(int row) const
{
    return sectionOf(row);
}

QVariant TableItemModel::rowInSection(int row) const
{
    const auto path = cellPath(row);
    return path ? path->row : -1;
}

QVariant TableItemModel::titleOfRow(int row) const
{
    const auto kind = rows_[static_cast<std::size_t>(row)].kind;
    const auto& section = sections_[static_cast<std::size_t>(sectionOf(row))];
    return kind == RowKind::Cell     ? QString{}
           : kind == RowKind::Header ? section.header.value_or(QString{})
                                     : section.footer.value_or(QString{});
}

QVariant TableItemModel::isSelected(int row) const
{
    const auto path = cellPath(row);
    return path && selected_ == path;
}

QVariant TableItemModel::isLastInSection(int row) const
{
    const auto path = cellPath(row);
    const auto next = cellPath(row + 1);
    return path && (!next || next->section != path->section);
}

QVariant TableItemModel::isAlone(int row) const
{
    const bool isHeader = rows_[static_cast<std::size_t>(row)].kind == RowKind::Header;
    return isHeader && (row + 1 == rowCount() || !cellPath(row + 1));
}

QVariant TableItemModel::canEdit(int row) const
{
    const auto path = cellPath(row);
    if (!path || stale_) {
        return false;
    }
    const SourceCall guard{sourceCalls_};
    return source_.canEditRow(*path);
}

const TableCell& TableItemModel::cell(IndexPath path) const
{
    if (!cell_ || cellPath_ != path) {
        const SourceCall guard{sourceCalls_};
        cell_ = source_.cellForRow(path);
        cellPath_ = path;
    }
    return *cell_;
}

void TableItemModel::reloadData()
{
    if (loading_) {
        loadAgain_ = true;
        return;
    }
    if (sourceCalls_ > 0) {
        QMetaObject::invokeMethod(this, &TableItemModel::reloadData, Qt::QueuedConnection);
        return;
    }
    load();
}

void TableItemModel::loadIfNeeded()
{
    if (!loaded_) {
        reloadData();
    }
}

void TableItemModel::load()
{
    loading_ = true;
    stale_ = true;
    std::vector<Row> rows;
    std::vector<Section> sections;
    do {
        loadAgain_ = false;
        rows.clear();
        sections.clear();
        const int sectionCount = source_.numberOfSections();
        for (int section = 0; section < sectionCount && !loadAgain_; ++section) {
            const auto& texts = sections.emplace_back(
                Section{optionalText(source_.titleForHeaderInSection(section)),
                        optionalText(source_.titleForFooterInSection(section))});
            if (texts.header) {
                rows.push_back({RowKind::Header, {section, 0}});
            }
            const auto begin = rows.size();
            const int rowCount = source_.numberOfRowsInSection(section);
            for (int row = 0; row < rowCount; ++row) {
                if (source_.showsRow({section, row})) {
                    rows.push_back({RowKind::Cell, {section, row}});
                }
            }
            // A section of which no row shows has no header either.
            if (texts.header && rowCount > 0 && rows.size() == begin) {
                rows.pop_back();
            }
            if (texts.footer) {
                rows.push_back({RowKind::Footer, {section, 0}});
            }
        }
        rawIndexTitles_ = source_.sectionIndexTitles();
    } while (loadAgain_);
    loading_ = false;

    loaded_ = true;
    ++generation_;
    indexTitles_ = toQStringList(rawIndexTitles_);
    actions_.clear();
    actionsPath_.reset();
    selected_.reset();
    replaceRows(std::move(rows), std::move(sections));
    emit reloaded();
}

void TableItemModel::replaceRows(std::vector<Row> rows, std::vector<Section> sections)
{
    cell_.reset();
    // A view keeps its place over inserted or removed rows, not over a reset;
    // most reloads change at most one run of rows.
    const auto sameKind = [](const Row& left, const Row& right) { return left.kind == right.kind; };
    const auto common = std::min(rows_.size(), rows.size());
    const auto prefix = static_cast<std::size_t>(
        std::mismatch(rows_.begin(), rows_.begin() + static_cast<std::ptrdiff_t>(common),
                      rows.begin(), sameKind)
            .first -
        rows_.begin());
    std::size_t suffix = 0;
    while (suffix < common - prefix &&
           sameKind(rows_[rows_.size() - 1 - suffix], rows[rows.size() - 1 - suffix])) {
        ++suffix;
    }
    const auto removed = rows_.size() - prefix - suffix;
    const auto inserted = rows.size() - prefix - suffix;
    const auto first = static_cast<int>(prefix);
    const auto replace = [&] {
        rows_ = std::move(rows);
        sections_ = std::move(sections);
        stale_ = false;
    };

    if (removed > 0 && inserted > 0) {
        emit aboutToReset();
        beginResetModel();
        replace();
        endResetModel();
        emit resetDone();
    } else if (removed > 0) {
        beginRemoveRows({}, first, first + static_cast<int>(removed) - 1);
        replace();
        endRemoveRows();
    } else if (inserted > 0) {
        beginInsertRows({}, first, first + static_cast<int>(inserted) - 1);
        replace();
        endInsertRows();
    } else {
        replace();
    }
    if (!rows_.empty()) {
        emit dataChanged(index(0), index(static_cast<int>(rows_.size()) - 1));
    }
    indicators_.dropOrphans();
}

std::optional<IndexPath> TableItemModel::cellPath(int row) const
{
    if (row < 0 || row >= rowCount() ||
        rows_[static_cast<std::size_t>(row)].kind != RowKind::Cell) {
        return std::nullopt;
    }
    return rows_[static_cast<std::size_t>(row)].path;
}

int TableItemModel::listRow(IndexPath path) const
{
    const auto found = std::find_if(rows_.begin(), rows_.end(), [&](const Row& row) {
        return row.kind == RowKind::Cell && row.path == path;
    });
    return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

void TableItemModel::rowChanged(IndexPath path, const QList<int>& roles)
{
    const int row = listRow(path);
    if (row >= 0) {
        emit dataChanged(index(row), index(row), roles);
    }
}

void TableItemModel::reloadRow(IndexPath path)
{
    cell_.reset();
    rowChanged(path);
}

void TableItemModel::deselect(IndexPath path)
{
    if (selected_ == path) {
        selected_.reset();
        rowChanged(path, {SelectedRole});
    }
}

int TableItemModel::rowForIndexTitle(int index)
{
    if (index < 0 || static_cast<std::size_t>(index) >= rawIndexTitles_.size()) {
        return -1;
    }
    const int section = source_.sectionForSectionIndexTitle(
        rawIndexTitles_[static_cast<std::size_t>(index)], index);
    if (section < 0) {
        return -1;
    }
    return firstRow(section);
}

QString TableItemModel::sectionTitle(int row) const
{
    if (row < 0 || row >= rowCount()) {
        return {};
    }
    const auto section = rows_[static_cast<std::size_t>(row)].path.section;
    return sections_[static_cast<std::size_t>(section)].header.value_or(QString{});
}

int TableItemModel::nextHeaderRow(int row) const
{
    const auto from = rows_.begin() + std::clamp(row + 1, 0, rowCount());
    const auto found = std::find_if(from, rows_.end(),
                                    [](const Row& each) { return each.kind == RowKind::Header; });
    return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

int TableItemModel::sectionOf(int row) const
{
    return row < 0 || row >= rowCount() ? -1 : rows_[static_cast<std::size_t>(row)].path.section;
}

int TableItemModel::firstRow(int section) const
{
    const auto found = std::find_if(rows_.begin(), rows_.end(),
                                    [&](const Row& row) { return row.path.section >= section; });
    return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

int TableItemModel::cellAway(int row, int steps) const
{
    const int step = steps < 0 ? -1 : 1;
    int found = -1;
    for (int left = std::abs(steps), next = row + step; left > 0 && next >= 0 && next < rowCount();
         next += step) {
        if (rows_[static_cast<std::size_t>(next)].kind == RowKind::Cell) {
            found = next;
            --left;
        }
    }
    return found;
}

QVariantList TableItemModel::trailingActions(int row)
{
    actions_.clear();
    const auto path = cellPath(row);
    if (!path || !source_.canEditRow(*path)) {
        return {};
    }
    actions_ = source_.trailingSwipeActions(*path);
    actionsPath_ = path;
    QVariantList list;
    for (const auto& action : actions_) {
        list.append(QVariant::fromValue(
            SwipeOffer{toQString(action.title), toQString(action.image),
                       action.style == platform::ActionStyle::Destructive,
                       action.backgroundColor ? toQColor(*action.backgroundColor) : QColor{}}));
    }
    return list;
}

void TableItemModel::triggerAction(int row, int action)
{
    const auto path = cellPath(row);
    if (!path) {
        return;
    }
    if (actionsPath_ != path) {
        // Another row was swiped open since.
        trailingActions(row);
    }
    if (action < 0 || static_cast<std::size_t>(action) >= actions_.size()) {
        return;
    }
    // A copy: the handler may reload the table, which forgets the actions.
    const auto triggered = actions_[static_cast<std::size_t>(action)];
    actions_.clear();
    if (!triggered.handler) {
        return;
    }
    const bool destructive = triggered.style == platform::ActionStyle::Destructive;
    triggered.handler(
        [self = QPointer{this}, path = *path, destructive, generation = generation_](bool done) {
            if (self && done && destructive && generation == self->generation_) {
                self->hide(path);
            }
        });
}

void TableItemModel::hide(IndexPath path)
{
    const int row = listRow(path);
    if (row < 0) {
        return;
    }
    beginRemoveRows({}, row, row);
    rows_.erase(rows_.begin() + row);
    endRemoveRows();
}

void TableItemModel::tap(int row)
{
    const auto path = cellPath(row);
    if (!path) {
        return;
    }
    if (!cell(*path).selectable) {
        return;
    }
    if (selected_ && *selected_ != *path) {
        deselect(*selected_);
    }
    selected_ = path;
    rowChanged(*path, {SelectedRole});
    source_.rowTapped(*path);
}

void TableItemModel::hold(int row)
{
    if (const auto path = cellPath(row)) {
        source_.rowHeld(*path);
    }
}

void TableItemModel::tapAccessory(int row)
{
    if (const auto path = cellPath(row)) {
        source_.accessoryButtonTapped(*path);
    }
}

void TableItemModel::toggleSwitch(int row, bool on)
{
    if (const auto path = cellPath(row)) {
        cell_.reset();
        source_.switchToggled(*path, on);
        rowChanged(*path);
    }
}

void TableItemModel::changeSegment(int row, int segment)
{
    if (const auto path = cellPath(row)) {
        cell_.reset();
        source_.segmentChanged(*path, segment);
        rowChanged(*path);
    }
}

} // namespace lumora::qt
