// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/view_factory.h"

#include <memory>
#include <optional>
#include <vector>

namespace lumora::support {

/// Writes down what its controller asked of it; no row is ever selected.
class FakeTableView final : public platform::TableView {
public:
    void reloadData() override { ++reloads; }
    void reloadRow(platform::IndexPath path) override { reloadedRows.push_back(path); }
    void setSeparatorStyle(platform::SeparatorStyle style) override { separatorStyle = style; }
    void setBackgroundView(const platform::EmptyStateView& view) override { backgroundView = view; }
    void setBackgroundViewHidden(bool hidden) override { backgroundHidden = hidden; }
    std::optional<platform::IndexPath> indexPathForSelectedRow() const override { return {}; }
    void deselectRow(platform::IndexPath path) override { deselectedRows.push_back(path); }

    int reloads = 0;
    std::vector<platform::IndexPath> reloadedRows;
    std::vector<platform::IndexPath> deselectedRows;
    std::optional<platform::SeparatorStyle> separatorStyle;
    std::optional<platform::EmptyStateView> backgroundView;
    std::optional<bool> backgroundHidden;
};

class FakeCollectionView final : public platform::CollectionView {
public:
    void reloadData() override {}
};

class FakeViewFactory final : public platform::ViewFactory {
public:
    std::unique_ptr<platform::TableView>
    makeTableView(platform::TableDataSource& /*source*/) override
    {
        return std::make_unique<FakeTableView>();
    }
    std::unique_ptr<platform::CollectionView>
    makeCollectionView(platform::CollectionDataSource& /*source*/) override
    {
        return std::make_unique<FakeCollectionView>();
    }
};

} // namespace lumora::support
