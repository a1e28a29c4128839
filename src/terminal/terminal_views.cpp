// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "terminal/terminal_views.h"

#include <utility>

namespace lumora::terminal {

TerminalTableView& TerminalTableView::of(platform::TableView& view)
{
    return dynamic_cast<TerminalTableView&>(view);
}

std::vector<TextSection> TerminalTableView::sections() const
{
    std::vector<TextSection> sections;
    const int count = source_.numberOfSections();
    for (int section = 0; section < count; ++section) {
        TextSection text{source_.titleForHeaderInSection(section), {}};
        const int rows = source_.numberOfRowsInSection(section);
        for (int row = 0; row < rows; ++row) {
            auto cell = source_.cellForRow({section, row});
            if (!cell.note.empty()) {
                cell.text += " (" + cell.note + ")";
            }
            text.rows.push_back({std::move(cell.text), std::move(cell.detailText)});
        }
        sections.push_back(std::move(text));
    }
    return sections;
}

std::unique_ptr<platform::TableView>
TerminalViewFactory::makeTableView(platform::TableDataSource& source)
{
    return std::make_unique<TerminalTableView>(source);
}

std::unique_ptr<platform::CollectionView>
TerminalViewFactory::makeCollectionView(platform::CollectionDataSource& /*source*/)
{
    return std::make_unique<TerminalCollectionView>();
}

} // namespace lumora::terminal
