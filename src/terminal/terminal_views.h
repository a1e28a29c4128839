// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/view_factory.h"

#include <optional>
#include <string>
#include <vector>

namespace lumora::terminal {

struct TextRow {
    std::string text;
    std::string detailText;
    /// How it is said, where that is wanted.
    std::optional<std::string> ipa{};
};

struct TextSection {
    std::optional<std::string> title;
    std::vector<TextRow> rows;
};

/// A table without a screen: what it would show, as text. Printed once, it has
/// nothing to redraw or to select.
class TerminalTableView final : public platform::TableView {
public:
    explicit TerminalTableView(platform::TableDataSource& source) : source_{source} {}

    /// The view behind a controller that a TerminalViewFactory served.
    static TerminalTableView& of(platform::TableView& view);

    /// As the controller answers now.
    std::vector<TextSection> sections() const;

    void reloadData() override {}
    void reloadRow(platform::IndexPath /*path*/) override {}
    void setSeparatorStyle(platform::SeparatorStyle /*style*/) override {}
    void setBackgroundView(const platform::EmptyStateView& /*view*/) override {}
    void setBackgroundViewHidden(bool /*hidden*/) override {}
    std::optional<platform::IndexPath> indexPathForSelectedRow() const override
    {
        return std::nullopt;
    }
    void deselectRow(platform::IndexPath /*path*/) override {}

private:
    platform::TableDataSource& source_;
};

/// Collections show nothing that a table does not.
class TerminalCollectionView final : public platform::CollectionView {
public:
    void reloadData() override {}
};

class TerminalViewFactory final : public platform::ViewFactory {
public:
    std::unique_ptr<platform::TableView> makeTableView(platform::TableDataSource& source) override;
    std::unique_ptr<platform::CollectionView>
    makeCollectionView(platform::CollectionDataSource& source) override;
};

} // namespace lumora::terminal
