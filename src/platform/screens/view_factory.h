// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/collection_view.h"
#include "platform/screens/table_view.h"

#include <memory>

namespace lumora::platform {

/// Makes the toolkit's views. A view may be asked to draw as long as both it
/// and the data source live; the controller owns the view.
class ViewFactory {
public:
    virtual ~ViewFactory() = default;
    virtual std::unique_ptr<TableView> makeTableView(TableDataSource& source) = 0;
    virtual std::unique_ptr<CollectionView> makeCollectionView(CollectionDataSource& source) = 0;
};

} // namespace lumora::platform
