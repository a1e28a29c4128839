// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/table_view_controller.h"
#include "qt/models/qt_table_view.h"
#include "qt/screens/screen.h"

namespace lumora::qt {

/// A screen that shows a table.
class TableScreen : public lumora::qt::Screen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the registry")
    Q_PROPERTY(lumora::qt::QtTableView* table READ table CONSTANT)

public:
    explicit TableScreen(const std::shared_ptr<platform::TableViewController>& controller,
                         const QString& pageName = QStringLiteral("TablePage"));
    /// The table belongs to the controller.
    TableScreen(std::shared_ptr<platform::ViewController> controller, platform::TableView& table,
                const QString& pageName);

    QtTableView* table() const { return &table_; }
    /// The page is about to draw the table.
    Q_INVOKABLE void prepare() { table_.model()->loadIfNeeded(); }

private:
    QtTableView& table_;
};

} // namespace lumora::qt
