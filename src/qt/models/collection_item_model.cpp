// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/models/collection_item_model.h"

#include "qt/base/text_conversion.h"

#include <algorithm>

namespace lumora::qt {

CollectionItemModel::CollectionItemModel(platform::CollectionDataSource& source) : source_{source}
{}

int CollectionItemModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count_;
}

QHash<int, QByteArray> CollectionItemModel::roleNames() const
{
    return names();
}

const QHash<int, QByteArray>& CollectionItemModel::names()
{
    // Asked for every cell that a view makes.
    static const auto kNames = [] {
        QHash<int, QByteArray> names{{TitleRole, "title"}};
        for (int number = 0; number < kLines; ++number) {
            names.insert(FirstLineRole + number, "line" + QByteArray::number(number));
        }
        return names;
    }();
    return kNames;
}

QVariant CollectionItemModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    if (role == TitleRole) {
        return toQString(cell(index.row()).title);
    }
    const int number = role - FirstLineRole;
    return number < 0 || number >= kLines
               ? QVariant{}
               : QVariant::fromValue(line(index.row(), static_cast<std::size_t>(number)));
}

CollectionLine CollectionItemModel::line(int item, std::size_t number) const
{
    const auto& rows = cell(item).rows;
    if (number >= rows.size()) {
        return {};
    }
    const auto& row = rows[number];
    return {.leading = toQString(row.leading),
            .trailing = toQString(row.trailing),
            .accessibleName = toQString(row.accessibilityLabel),
            .lineStyle = toValue(row.lineStyle, row.trailing),
            .audioWidth = row.audioWidth,
            .audioPadding = row.audioPadding,
            .controlHidden = row.controlHidden,
            .indicator = indicators_.sourceFor(row.control.indicator)};
}

const platform::CollectionCell& CollectionItemModel::cell(int item) const
{
    if (!cell_ || cellItem_ != item) {
        busy_ = true;
        cell_ = source_.cellForItem(item);
        busy_ = false;
        cellItem_ = item;
    }
    return *cell_;
}

void CollectionItemModel::reloadData()
{
    if (busy_) {
        QMetaObject::invokeMethod(this, &CollectionItemModel::reloadData, Qt::QueuedConnection);
        return;
    }
    busy_ = true;
    const int count = std::max(0, source_.numberOfItems());
    headerText_ = toQString(source_.header().title);
    layout_ = source_.layout();
    busy_ = false;
    loaded_ = true;
    cell_.reset();

    if (count > count_) {
        beginInsertRows({}, count_, count - 1);
        count_ = count;
        endInsertRows();
    } else if (count < count_) {
        beginRemoveRows({}, count, count_ - 1);
        count_ = count;
        endRemoveRows();
    }
    if (count_ > 0) {
        emit dataChanged(index(0), index(count_ - 1));
    }
    indicators_.dropOrphans();
    emit reloaded();
}

void CollectionItemModel::loadIfNeeded()
{
    if (!loaded_) {
        reloadData();
    }
}

void CollectionItemModel::tapAudio(int item, int line)
{
    if (item >= 0 && item < count_) {
        source_.audioTapped(item, line);
    }
}

} // namespace lumora::qt
