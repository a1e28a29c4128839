// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/table_cell.h"

#include <memory>
#include <string>
#include <vector>

namespace lumora::platform {

/// One line of a collection cell: two texts and the place of a play control.
struct CollectionRow {
    std::string leading;
    std::string trailing;
    double audioWidth = 0;
    double audioPadding = 0;
    bool controlHidden = true;
    PlayControl control;
    /// What a screen reader says; empty for an empty line.
    std::string accessibilityLabel;
    LineStyle lineStyle{};
};

/// What one square of a collection shows.
struct CollectionCell {
    std::string reuseIdentifier;
    std::string title;
    std::vector<CollectionRow> rows;
};

/// What stands above the squares.
struct CollectionHeader {
    std::string reuseIdentifier;
    std::string title;
};

/// Points, the same on every screen.
struct CollectionLayout {
    double itemWidth = 0;
    double itemHeight = 0;
    double sectionInset = 0;
    double minimumLineSpacing = 0;
};

/// What a collection view asks of the controller behind it.
class CollectionDataSource {
public:
    virtual ~CollectionDataSource() = default;

    virtual int numberOfItems() = 0;
    virtual CollectionCell cellForItem(int item) = 0;
    virtual CollectionHeader header() = 0;
    virtual CollectionLayout layout() = 0;
    /// `row` is the tapped control's line in the cell, from 0.
    virtual void audioTapped(int item, int row) = 0;
};

/// A collection on screen, as its controller sees it.
class CollectionView {
public:
    virtual ~CollectionView() = default;
    virtual void reloadData() = 0;
};

} // namespace lumora::platform
