// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/models/qt_view_factory.h"

#include "qt/models/qt_collection_view.h"
#include "qt/models/qt_table_view.h"

namespace lumora::qt {

std::unique_ptr<platform::TableView> QtViewFactory::makeTableView(platform::TableDataSource& source)
{
    return std::make_unique<QtTableView>(source);
}

std::unique_ptr<platform::CollectionView>
QtViewFactory::makeCollectionView(platform::CollectionDataSource& source)
{
    return std::make_unique<QtCollectionView>(source);
}

} // namespace lumora::qt
