// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "qt/models/collection_item_model.h"

#include <QQmlEngine>

namespace lumora::qt {

/// A controller's collection: owned by the controller, it owns the model.
class QtCollectionView final : public platform::CollectionView {
public:
    explicit QtCollectionView(platform::CollectionDataSource& source) : model_{source}
    {
        QQmlEngine::setObjectOwnership(&model_, QQmlEngine::CppOwnership);
    }

    CollectionItemModel* model() { return &model_; }
    void reloadData() override { model_.reloadData(); }

private:
    CollectionItemModel model_;
};

} // namespace lumora::qt
