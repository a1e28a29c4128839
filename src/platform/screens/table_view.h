// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/index_path.h"
#include "platform/screens/swipe_action.h"
#include "platform/screens/table_cell.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lumora::platform {

enum class SeparatorStyle { None, SingleLine };

/// The centred text of a table without rows.
struct EmptyStateView {
    std::string text;
    bool bold = true;
    double fontSize = 18;
    /// Points; the text wraps inside it.
    double width = 300;
};

/// What a table view asks of the controller behind it. Counts may change only
/// between a reloadData and the next.
class TableDataSource {
public:
    virtual ~TableDataSource() = default;

    virtual int numberOfSections() = 0;
    virtual int numberOfRowsInSection(int section) = 0;
    virtual TableCell cellForRow(IndexPath path) = 0;

    /// None: the section has no header at all; an empty text is a header.
    virtual std::optional<std::string> titleForHeaderInSection(int section);
    virtual std::optional<std::string> titleForFooterInSection(int section);
    virtual std::vector<std::string> sectionIndexTitles();
    /// -1 when no section bears the title.
    virtual int sectionForSectionIndexTitle(std::string_view title, int index);

    /// Whether the row shows. One that does not is counted as the others are.
    virtual bool showsRow(IndexPath path);
    virtual bool canEditRow(IndexPath path);
    virtual std::vector<SwipeAction> trailingSwipeActions(IndexPath path);
    /// The view calls this for a tap; the controller decides whether the tap does
    /// something else than `didSelectRow`.
    virtual void rowTapped(IndexPath path);
    virtual void didSelectRow(IndexPath path);
    /// A long press on the row.
    virtual void rowHeld(IndexPath path);
    virtual void accessoryButtonTapped(IndexPath path);
    virtual void switchToggled(IndexPath path, bool on);
    virtual void segmentChanged(IndexPath path, int segment);
};

/// A table on screen, as its controller sees it.
class TableView {
public:
    virtual ~TableView() = default;

    virtual void reloadData() = 0;
    virtual void reloadRow(IndexPath path) = 0;
    virtual void setSeparatorStyle(SeparatorStyle style) = 0;
    virtual void setBackgroundView(const EmptyStateView& view) = 0;
    virtual void setBackgroundViewHidden(bool hidden) = 0;
    virtual std::optional<IndexPath> indexPathForSelectedRow() const = 0;
    virtual void deselectRow(IndexPath path) = 0;
};

} // namespace lumora::platform
