// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "web/web_views.h"

#include "platform/screens/table_cell.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace lumora::web {

using platform::IndexPath;
using platform::TableCell;

namespace {

/// Rows told with a changed table; a page that shows more asks for them.
constexpr int kFirstRows = 24;
/// Up to this many a table is told whole.
constexpr int kShortTable = 160;

const char* nameOf(platform::RunStyle style)
{
    constexpr std::array<const char*, 5> kNames{"plain", "light", "strong", "accent", "underlined"};
    return kNames[static_cast<std::size_t>(style)];
}

const char* nameOf(platform::ActionStyle style)
{
    constexpr std::array<const char*, 3> kNames{"normal", "destructive", "cancel"};
    return kNames[static_cast<std::size_t>(style)];
}

Json controlOf(const TableCell& cell, Rings& rings)
{
    if (const auto* toggle = std::get_if<platform::SwitchControl>(&cell.control)) {
        return {{"on", toggle->on}};
    }
    if (const auto* segments = std::get_if<platform::SegmentedControl>(&cell.control)) {
        return {{"titles", segments->titles}, {"selected", segments->selected}};
    }
    if (const auto* play = std::get_if<platform::PlayControl>(&cell.control)) {
        return rings.describe(play->indicator);
    }
    return nullptr;
}

Json toJson(const TableCell& cell, Rings& rings)
{
    return {{"reuse", cell.reuseIdentifier},
            {"text", cell.text},
            {"note", cell.note},
            {"detail", cell.detailText},
            {"lineStyle", web::toJson(cell.lineStyle)},
            {"image", cell.image},
            {"id", cell.accessibilityIdentifier},
            {"label", cell.accessibilityLabel},
            {"selectable", cell.selectable},
            {"disclosure", cell.accessory == platform::CellAccessory::DisclosureIndicator},
            {"control", controlOf(cell, rings)}};
}

} // namespace

Json toJson(const platform::Color& color)
{
    const auto channel = [](double part) { return std::lround(part * 255); };
    return Json::array(
        {channel(color.red), channel(color.green), channel(color.blue), color.alpha});
}

Json toJson(const platform::LineStyle& lineStyle)
{
    Json runs = Json::array();
    for (const auto& run : lineStyle.runs) {
        runs.push_back({{"text", run.text}, {"style", nameOf(run.style)}});
    }
    return {{"runs", std::move(runs)},
            {"hint", lineStyle.hint},
            {"caption", lineStyle.caption},
            {"spoken", lineStyle.accessibilityHint}};
}

WebTableView::WebTableView(platform::TableDataSource& source, WebViewFactory& factory)
    : source_{source}, factory_{factory}, number_{++factory.last_}
{
    factory_.tables_.emplace(number_, this);
}

WebTableView::~WebTableView()
{
    *self_ = nullptr;
    factory_.tables_.erase(number_);
}

void WebTableView::reloadData()
{
    stale_ = true;
    ++revision_;
    actions_.clear();
    actionsPath_.reset();
    selected_.reset();
}

void WebTableView::reloadRow(IndexPath /*path*/)
{
    ++revision_;
}

void WebTableView::deselectRow(IndexPath path)
{
    if (selected_ == path) {
        selected_.reset();
        ++revision_;
    }
}

void WebTableView::setBackgroundView(const platform::EmptyStateView& view)
{
    background_ = view;
}

void WebTableView::setBackgroundViewHidden(bool hidden)
{
    backgroundHidden_ = hidden;
}

void WebTableView::load()
{
    // Asking may reload the table: then what was read is old.
    while (std::exchange(stale_, false)) {
        ++generation_;
        rows_.clear();
        headers_.clear();
        footers_.clear();
        const int sections = source_.numberOfSections();
        for (int section = 0; section < sections; ++section) {
            headers_.push_back(source_.titleForHeaderInSection(section));
            footers_.push_back(source_.titleForFooterInSection(section));
            if (headers_.back()) {
                rows_.push_back({Kind::Header, {section, 0}});
            }
            const auto begin = rows_.size();
            const int count = source_.numberOfRowsInSection(section);
            for (int row = 0; row < count; ++row) {
                if (source_.showsRow({section, row})) {
                    rows_.push_back({Kind::Cell, {section, row}});
                }
            }
            // A section of which nothing is left has no header either.
            if (headers_.back() && count > 0 && rows_.size() == begin) {
                rows_.pop_back();
            }
            if (footers_.back()) {
                rows_.push_back({Kind::Footer, {section, 0}});
            }
        }
    }
}

Json WebTableView::layout() const
{
    Json runs = Json::array();
    for (const auto& row : rows_) {
        if (row.kind != Kind::Cell) {
            const auto& titles = row.kind == Kind::Header ? headers_ : footers_;
            runs.push_back({row.kind == Kind::Header ? "header" : "footer",
                            titles[static_cast<std::size_t>(row.path.section)].value_or("")});
        } else if (!runs.empty() && runs.back()[0] == "cells") {
            runs.back()[1] = runs.back()[1].get<int>() + 1;
        } else {
            runs.push_back({"cells", 1});
        }
    }
    return runs;
}

Json WebTableView::index() const
{
    Json entries = Json::array();
    const auto titles = source_.sectionIndexTitles();
    for (std::size_t at = 0; at < titles.size(); ++at) {
        const int section = source_.sectionForSectionIndexTitle(titles[at], static_cast<int>(at));
        const auto found = std::find_if(rows_.begin(), rows_.end(), [&](const Row& row) {
            return section >= 0 && row.path.section >= section;
        });
        if (found != rows_.end()) {
            entries.push_back({titles[at], found - rows_.begin()});
        }
    }
    return entries;
}

Json WebTableView::describe()
{
    load();
    Json table{{"table", number_}, {"revision", revision_}, {"empty", nullptr}};
    if (background_ && !backgroundHidden_) {
        table["empty"] = {{"text", background_->text}};
    }
    if (toldRevision_ != revision_) {
        toldRevision_ = revision_;
        table["layout"] = layout();
        table["index"] = index();
        const auto size = static_cast<int>(rows_.size());
        table["rows"] = rows(0, size <= kShortTable ? size : kFirstRows);
    }
    return table;
}

Json WebTableView::rows(int from, int count)
{
    load();
    Json rows = Json::array();
    const int end = std::min(from + count, static_cast<int>(rows_.size()));
    for (int row = std::max(from, 0); row < end; ++row) {
        rows.push_back(rowAt(row));
    }
    return rows;
}

std::string WebTableView::textOf(int row)
{
    load();
    const auto path = cellPath(row);
    return path ? source_.cellForRow(*path).text : std::string{};
}

Json WebTableView::rowAt(int row) const
{
    const auto path = cellPath(row);
    if (!path) {
        return nullptr;
    }
    auto cell = toJson(source_.cellForRow(*path), factory_.rings());
    cell["section"] = path->section;
    cell["row"] = path->row;
    cell["editable"] = source_.canEditRow(*path);
    return cell;
}

std::optional<IndexPath> WebTableView::cellPath(int row) const
{
    if (row < 0 || static_cast<std::size_t>(row) >= rows_.size() ||
        rows_[static_cast<std::size_t>(row)].kind != Kind::Cell) {
        return std::nullopt;
    }
    return rows_[static_cast<std::size_t>(row)].path;
}

int WebTableView::listRow(IndexPath path) const
{
    const auto found = std::find_if(rows_.begin(), rows_.end(), [&](const Row& row) {
        return row.kind == Kind::Cell && row.path == path;
    });
    return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

Json WebTableView::trailingActions(int row)
{
    actions_.clear();
    Json offers = Json::array();
    load();
    const auto path = cellPath(row);
    if (!path || !source_.canEditRow(*path)) {
        return offers;
    }
    actions_ = source_.trailingSwipeActions(*path);
    actionsPath_ = path;
    for (const auto& action : actions_) {
        offers.push_back(
            {{"title", action.title},
             {"image", action.image},
             {"style", nameOf(action.style)},
             {"color", action.backgroundColor ? web::toJson(*action.backgroundColor) : Json{}}});
    }
    return offers;
}

void WebTableView::triggerAction(int row, int action)
{
    load();
    const auto path = cellPath(row);
    if (path && actionsPath_ != path) {
        trailingActions(row);
    }
    if (!path || action < 0 || static_cast<std::size_t>(action) >= actions_.size()) {
        return;
    }
    // A copy: the handler may reload the table, which forgets the actions.
    const auto triggered = actions_[static_cast<std::size_t>(action)];
    actions_.clear();
    actionsPath_.reset();
    if (!triggered.handler) {
        return;
    }
    const bool destructive = triggered.style == platform::ActionStyle::Destructive;
    triggered.handler(
        [self = self_, path = *path, destructive, generation = generation_](bool done) {
            auto* const table = *self;
            if (table != nullptr && done && destructive && !table->stale_ &&
                generation == table->generation_) {
                table->hide(path);
            }
        });
}

void WebTableView::hide(IndexPath path)
{
    const int row = listRow(path);
    if (row >= 0) {
        rows_.erase(rows_.begin() + row);
        ++revision_;
    }
}

bool WebTableView::handle(std::string_view kind, int row, const Json& event)
{
    load();
    const auto path = cellPath(row);
    if (!path) {
        return true;
    }
    if (kind == "tap") {
        if (source_.cellForRow(*path).selectable) {
            selected_ = path;
            source_.rowTapped(*path);
        }
    } else if (kind == "hold") {
        source_.rowHeld(*path);
    } else if (kind == "accessory") {
        source_.accessoryButtonTapped(*path);
    } else if (kind == "switch") {
        source_.switchToggled(*path, event.value("on", false));
        ++revision_;
    } else if (kind == "segment") {
        source_.segmentChanged(*path, event.value("segment", 0));
        ++revision_;
    } else {
        return false;
    }
    return true;
}

Json WebCollectionView::describe()
{
    if (!std::exchange(changed_, false)) {
        return nullptr;
    }
    Json items = Json::array();
    const int count = source_.numberOfItems();
    for (int item = 0; item < count; ++item) {
        const auto cell = source_.cellForItem(item);
        Json lines = Json::array();
        for (const auto& row : cell.rows) {
            lines.push_back(
                {{"leading", row.leading},
                 {"trailing", row.trailing},
                 {"label", row.accessibilityLabel},
                 {"lineStyle", toJson(row.lineStyle)},
                 {"control", row.controlHidden ? Json{} : rings_.describe(row.control.indicator)}});
        }
        items.push_back({{"title", cell.title}, {"rows", std::move(lines)}});
    }
    return {{"title", source_.header().title}, {"items", std::move(items)}};
}

std::unique_ptr<platform::TableView>
WebViewFactory::makeTableView(platform::TableDataSource& source)
{
    return std::make_unique<WebTableView>(source, *this);
}

std::unique_ptr<platform::CollectionView>
WebViewFactory::makeCollectionView(platform::CollectionDataSource& source)
{
    return std::make_unique<WebCollectionView>(source, rings_);
}

WebTableView* WebViewFactory::table(int number) const
{
    const auto found = tables_.find(number);
    return found == tables_.end() ? nullptr : found->second;
}

} // namespace lumora::web
