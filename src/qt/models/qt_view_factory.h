// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/view_factory.h"

namespace lumora::qt {

/// Makes the views that the QML screens show.
class QtViewFactory final : public platform::ViewFactory {
public:
    std::unique_ptr<platform::TableView> makeTableView(platform::TableDataSource& source) override;
    std::unique_ptr<platform::CollectionView>
    makeCollectionView(platform::CollectionDataSource& source) override;
};

} // namespace lumora::qt
