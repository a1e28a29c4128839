// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/models/reusable_collection_model.h"

#include <algorithm>
#include <utility>

namespace lumora::qt {

void ReusableCollectionModel::setCollection(CollectionItemModel* collection)
{
    if (collection == collection_) {
        return;
    }
    disconnect(reloaded_);
    collection_ = collection;
    emit collectionChanged();
    if (collection_) {
        collection_->loadIfNeeded();
        reloaded_ = connect(collection_, &CollectionItemModel::reloaded, this,
                            &ReusableCollectionModel::refill);
    }
    follow();
}

int ReusableCollectionModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count_;
}

QVariant ReusableCollectionModel::data(const QModelIndex& index, int role) const
{
    if (role == kGenerationRole) {
        return generation_;
    }
    return collection_ && checkIndex(index, CheckIndexOption::IndexIsValid)
               ? collection_->data(collection_->index(index.row()), role)
               : QVariant{};
}

QHash<int, QByteArray> ReusableCollectionModel::roleNames() const
{
    static const auto kNames = [] {
        auto names = CollectionItemModel::names();
        names.insert(kGenerationRole, "generation");
        return names;
    }();
    return kNames;
}

void ReusableCollectionModel::refill()
{
    follow();
    fillAll();
}

void ReusableCollectionModel::fill(int end)
{
    const int begin = filled_;
    filled_ = std::clamp(end, begin, count_);
    if (filled_ > begin) {
        emit dataChanged(index(begin), index(filled_ - 1));
    }
    if (std::exchange(waiting_, filled_ < count_) != waiting_) {
        emit waitingChanged();
    }
}

void ReusableCollectionModel::follow()
{
    const int count = collection_ ? collection_->rowCount() : 0;
    // New items are full.
    filled_ = std::min(count, count_) > 0 ? 0 : count;
    ++generation_;
    if (count > count_) {
        beginInsertRows({}, count_, count - 1);
        count_ = count;
        endInsertRows();
    } else if (count < count_) {
        beginRemoveRows({}, count, count_ - 1);
        count_ = count;
        endRemoveRows();
    }
    fill(0);
}

} // namespace lumora::qt
