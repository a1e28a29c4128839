// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "qt/models/table_item_model.h"

#include <QObject>
#include <QPointer>

namespace lumora::qt {

/// A controller's table with its model and its looks. Owned by the controller
/// as its platform::TableView.
class QtTableView final : public QObject, public platform::TableView {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to a controller")
    Q_PROPERTY(lumora::qt::TableItemModel* model READ model CONSTANT)
    Q_PROPERTY(bool separators READ separators NOTIFY looksChanged)
    Q_PROPERTY(bool emptyStateVisible READ emptyStateVisible NOTIFY looksChanged)
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY looksChanged)
    Q_PROPERTY(bool emptyBold READ emptyBold NOTIFY looksChanged)
    Q_PROPERTY(double emptyFontSize READ emptyFontSize NOTIFY looksChanged)
    Q_PROPERTY(double emptyWidth READ emptyWidth NOTIFY looksChanged)
    Q_PROPERTY(QObject* list MEMBER list_ NOTIFY listChanged)

public:
    explicit QtTableView(platform::TableDataSource& source);

    TableItemModel* model() { return &model_; }
    const TableItemModel* model() const { return &model_; }
    bool separators() const { return separatorStyle_ == platform::SeparatorStyle::SingleLine; }
    bool emptyStateVisible() const { return background_.has_value() && !backgroundHidden_; }
    QString emptyText() const;
    bool emptyBold() const { return background_ && background_->bold; }
    double emptyFontSize() const { return background_ ? background_->fontSize : 0; }
    double emptyWidth() const { return background_ ? background_->width : 0; }

    void reloadData() override { model_.reloadData(); }
    void reloadRow(platform::IndexPath path) override { model_.reloadRow(path); }
    void setSeparatorStyle(platform::SeparatorStyle style) override;
    void setBackgroundView(const platform::EmptyStateView& view) override;
    void setBackgroundViewHidden(bool hidden) override;
    std::optional<platform::IndexPath> indexPathForSelectedRow() const override
    {
        return model_.selectedPath();
    }
    void deselectRow(platform::IndexPath path) override { model_.deselect(path); }

signals:
    void looksChanged();
    void listChanged();

private:
    TableItemModel model_;
    platform::SeparatorStyle separatorStyle_ = platform::SeparatorStyle::SingleLine;
    std::optional<platform::EmptyStateView> background_;
    bool backgroundHidden_ = false;
    /// The list that draws the rows, if one does.
    QPointer<QObject> list_;
};

} // namespace lumora::qt
