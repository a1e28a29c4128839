// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "qt/models/collection_item_model.h"

#include <QAbstractListModel>
#include <QMetaObject>
#include <QPointer>

namespace lumora::qt {

/// The cells of the collection that it is given. A view of it keeps its items when it is
/// given another collection, and fills them anew: a view of the collection itself would make
/// new ones, which takes longer. Of another collection the view hears only as far as it asks,
/// so that what is out of sight can wait for a frame. GUI thread only.
class ReusableCollectionModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    /// Null for none, or once it is gone; belongs to its screen.
    Q_PROPERTY(lumora::qt::CollectionItemModel* collection READ collection WRITE setCollection
                   NOTIFY collectionChanged)
    /// Some items still show the collection before.
    Q_PROPERTY(bool waiting READ isWaiting NOTIFY waitingChanged)

public:
    CollectionItemModel* collection() const { return collection_; }
    void setCollection(CollectionItemModel* collection);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    bool isWaiting() const { return waiting_; }
    /// The items before this one show the collection from now on.
    Q_INVOKABLE void fill(int end);
    Q_INVOKABLE void fillAll() { fill(count_); }

signals:
    void collectionChanged();
    void waitingChanged();

private:
    /// Counts what was filled anew, for what is worked out of it.
    static constexpr int kGenerationRole =
        CollectionItemModel::FirstLineRole + CollectionItemModel::kLines;

    void follow();
    void refill();

    QPointer<CollectionItemModel> collection_;
    QMetaObject::Connection reloaded_;
    int count_ = 0;
    int filled_ = 0;
    int generation_ = 0;
    bool waiting_ = false;
};

} // namespace lumora::qt
