// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/view_factory.h"

#include <memory>
#include <optional>
#include <vector>

namespace lumora::support {

/// Writes down what its controller asked of it; a test plays the user through
/// `source` and `selectedRow`.
class FakeTableView final : public platform::TableView {
public:
    explicit FakeTableView(platform::TableDataSource& dataSource) : source(dataSource) {}

    void reloadData() override { ++reloads; }
    void reloadRow(platform::IndexPath path) override { reloadedRows.push_back(path); }
    void setSeparatorStyle(platform::SeparatorStyle style) override { separatorStyle = style; }
    void setBackgroundView(const platform::EmptyStateView& view) override { backgroundView = view; }
    void setBackgroundViewHidden(bool hidden) override { backgroundHidden = hidden; }
    std::optional<platform::IndexPath> indexPathForSelectedRow() const override
    {
        return selectedRow;
    }
    void deselectRow(platform::IndexPath path) override
    {
        deselectedRows.push_back(path);
        if (selectedRow == path) {
            selectedRow.reset();
        }
    }

    platform::TableDataSource& source;
    int reloads = 0;
    std::vector<platform::IndexPath> reloadedRows;
    std::vector<platform::IndexPath> deselectedRows;
    std::optional<platform::SeparatorStyle> separatorStyle;
    std::optional<platform::EmptyStateView> backgroundView;
    std::optional<bool> backgroundHidden;
    std::optional<platform::IndexPath> selectedRow;
};

class FakeCollectionView final : public platform::CollectionView {
public:
    explicit FakeCollectionView(platform::CollectionDataSource& dataSource) : source(dataSource) {}

    void reloadData() override { ++reloads; }

    platform::CollectionDataSource& source;
    int reloads = 0;
};

/// Makes the fakes and finds them again. A view may be looked for only while
/// its controller lives.
class FakeViewFactory final : public platform::ViewFactory {
public:
    std::unique_ptr<platform::TableView> makeTableView(platform::TableDataSource& source) override
    {
        auto view = std::make_unique<FakeTableView>(source);
        tables.push_back(view.get());
        return view;
    }
    std::unique_ptr<platform::CollectionView>
    makeCollectionView(platform::CollectionDataSource& source) override
    {
        auto view = std::make_unique<FakeCollectionView>(source);
        collections.push_back(view.get());
        return view;
    }

    /// In the order in which they were made.
    std::vector<FakeTableView*> tables;
    std::vector<FakeCollectionView*> collections;
};

} // namespace lumora::support
