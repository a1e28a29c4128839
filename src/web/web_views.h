// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/view_factory.h"
#include "web/outbox.h"
#include "web/rings.h"

#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace lumora::web {

class WebViewFactory;

/// A table as the page sees it: one list of headers, cells and footers, counted
/// from 0. The page is told when it has changed and fetches the rows that it draws.
class WebTableView final : public platform::TableView {
public:
    WebTableView(platform::TableDataSource& source, WebViewFactory& factory);
    ~WebTableView() override;

    int number() const { return number_; }
    /// Looks and layout; with the first rows, or all of a short table, unless the
    /// page has this revision already.
    Json describe();
    Json rows(int from, int count);
    /// First line of a row; empty where there is none.
    std::string textOf(int row);
    /// -1 where it is not shown.
    int listRow(platform::IndexPath path) const;
    Json trailingActions(int row);
    void triggerAction(int row, int action);
    /// One of the page's events on a row; false for an unknown one.
    bool handle(std::string_view kind, int row, const Json& event);

    void reloadData() override;
    void reloadRow(platform::IndexPath path) override;
    void setSeparatorStyle(platform::SeparatorStyle /*style*/) override {}
    void setBackgroundView(const platform::EmptyStateView& view) override;
    void setBackgroundViewHidden(bool hidden) override;
    std::optional<platform::IndexPath> indexPathForSelectedRow() const override
    {
        return selected_;
    }
    void deselectRow(platform::IndexPath path) override;

private:
    enum class Kind { Header, Cell, Footer };
    struct Row {
        Kind kind;
        platform::IndexPath path;
    };

    void load();
    Json layout() const;
    Json index() const;
    Json rowAt(int row) const;
    std::optional<platform::IndexPath> cellPath(int row) const;
    void hide(platform::IndexPath path);

    platform::TableDataSource& source_;
    WebViewFactory& factory_;
    int number_;
    int revision_ = 1;
    int toldRevision_ = 0;
    /// Counts the loads, so that an action's end knows whether its row is there.
    int generation_ = 0;
    bool stale_ = true;
    std::vector<Row> rows_;
    std::vector<std::optional<std::string>> headers_;
    std::vector<std::optional<std::string>> footers_;
    std::vector<platform::SwipeAction> actions_;
    std::optional<platform::IndexPath> actionsPath_;
    std::optional<platform::IndexPath> selected_;
    std::optional<platform::EmptyStateView> background_;
    bool backgroundHidden_ = false;
    /// For handlers that end after the table.
    std::shared_ptr<WebTableView*> self_ = std::make_shared<WebTableView*>(this);
};

/// The squares of a verb.
class WebCollectionView final : public platform::CollectionView {
public:
    WebCollectionView(platform::CollectionDataSource& source, Rings& rings)
        : source_{source}, rings_{rings}
    {}

    /// Null where the page has it already.
    Json describe();

    void reloadData() override { changed_ = true; }

private:
    platform::CollectionDataSource& source_;
    Rings& rings_;
    bool changed_ = true;
};

class WebViewFactory final : public platform::ViewFactory {
public:
    explicit WebViewFactory(Outbox& outbox) : rings_{outbox} {}

    std::unique_ptr<platform::TableView> makeTableView(platform::TableDataSource& source) override;
    std::unique_ptr<platform::CollectionView>
    makeCollectionView(platform::CollectionDataSource& source) override;

    /// Null where it has gone meanwhile.
    WebTableView* table(int number) const;
    Rings& rings() { return rings_; }

private:
    friend class WebTableView;

    Rings rings_;
    int last_ = 0;
    std::map<int, WebTableView*> tables_;
};

Json toJson(const platform::Color& color);
Json toJson(const platform::LineStyle& lineStyle);

} // namespace lumora::web
