// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/table_view.h"
#include "qt/models/indicator_source.h"
#include "qt/models/line_style_value.h"

#include <QAbstractListModel>
#include <QColor>
#include <QString>
#include <QtQml/qqmlregistration.h>
#include <QVariantList>

#include <optional>
#include <span>
#include <vector>

namespace lumora::qt {

/// What a swipe over a row offers to do with it.
struct SwipeOffer {
    Q_GADGET
    QML_VALUE_TYPE(swipeOffer)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString image MEMBER image FINAL)
    Q_PROPERTY(bool destructive MEMBER destructive FINAL)
    Q_PROPERTY(QColor background MEMBER background FINAL)

public:
    QString title;
    QString image;
    bool destructive = false;
    /// Invalid for the toolkit's own colour.
    QColor background;
};

/// Any table controller as one flat list: each section's header, cells and
/// footer, in order. It does all the arithmetic between rows of the list and
/// index paths; what a row says comes from the controller.
///
/// Counts and titles are asked once a reload, cells when a row is drawn. A
/// cell that a completed destructive swipe removed is left out, although the
/// controller still counts it, until the next reload. GUI thread only; the
/// source must outlive the model.
class TableItemModel final : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to a table view")
    Q_PROPERTY(QStringList indexTitles READ indexTitles NOTIFY reloaded)

public:
    enum class RowKind { Header, Cell, Footer };
    Q_ENUM(RowKind)
    enum class ControlKind { None, Switch, Segments, Play };
    Q_ENUM(ControlKind)
    enum Role {
        KindRole = Qt::UserRole + 1,
        SectionRole,
        RowRole,
        TitleRole,
        TextRole,
        NoteRole,
        DetailTextRole,
        ImageRole,
        SelectableRole,
        DisclosureRole,
        ControlRole,
        SwitchOnRole,
        SegmentTitlesRole,
        SelectedSegmentRole,
        IndicatorRole,
        CanEditRole,
        IdentifierRole,
        ReuseIdentifierRole,
        SelectedRole,
        LastInSectionRole,
        AccessibleNameRole,
        LineStyleRole,
        /// Of a header under which there are no cells.
        AloneRole,
    };

    explicit TableItemModel(platform::TableDataSource& source, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// Called by the controller while the model is calling it, the reload waits
    /// until that call has returned.
    void reloadData();
    /// The first load, for a controller that never asked for one.
    void loadIfNeeded();
    void reloadRow(platform::IndexPath path);

    /// Where a cell stands among all rows; -1 when it is not there.
    int listRow(platform::IndexPath path) const;

    std::optional<platform::IndexPath> selectedPath() const { return selected_; }
    void deselect(platform::IndexPath path);

    QStringList indexTitles() const { return indexTitles_; }
    /// The list row to scroll to for the title at `index`; -1 for none.
    Q_INVOKABLE int rowForIndexTitle(int index);
    /// The title of the header above a row; the empty text where its section
    /// has none.
    Q_INVOKABLE QString sectionTitle(int row) const;
    /// The list row of the first header after `row`; -1 for none.
    Q_INVOKABLE int nextHeaderRow(int row) const;
    /// -1 where there is no such row.
    Q_INVOKABLE int sectionOf(int row) const;
    /// The first row of a section, or of the next one that has rows; -1 for
    /// none.
    Q_INVOKABLE int firstRow(int section) const;
    /// The cell that many cells after a row, or before it; the outermost one
    /// where there are fewer, -1 where there is none.
    Q_INVOKABLE int cellAway(int row, int steps) const;

    /// What a swipe over the row offers, as SwipeOffer.
    Q_INVOKABLE QVariantList trailingActions(int row);
    /// Does the `action`th of what the row offered.
    Q_INVOKABLE void triggerAction(int row, int action);

    Q_INVOKABLE void tap(int row);
    /// A long press on the row.
    Q_INVOKABLE void hold(int row);
    Q_INVOKABLE void tapAccessory(int row);
    Q_INVOKABLE void toggleSwitch(int row, bool on);
    Q_INVOKABLE void changeSegment(int row, int segment);

signals:
    /// Before and after a change of all rows that no smaller signal tells.
    void aboutToReset();
    void resetDone();
    /// After every reload.
    void reloaded();

private:
    struct Row {
        RowKind kind;
        platform::IndexPath path;
    };
    struct Section {
        std::optional<QString> header;
        std::optional<QString> footer;
    };

    struct RoleEntry;
    static std::span<const RoleEntry> roles();
    // The values of the roles that do not come from a cell, by list row.
    QVariant kindOfRow(int row) const;
    QVariant sectionOfRow(int row) const;
    /// -1 for a header or a footer.
    QVariant rowInSection(int row) const;
    QVariant titleOfRow(int row) const;
    QVariant isSelected(int row) const;
    QVariant isLastInSection(int row) const;
    QVariant canEdit(int row) const;
    QVariant isAlone(int row) const;

    void load();
    void replaceRows(std::vector<Row> rows, std::vector<Section> sections);
    std::optional<platform::IndexPath> cellPath(int row) const;
    const platform::TableCell& cell(platform::IndexPath path) const;
    void hide(platform::IndexPath path);
    void rowChanged(platform::IndexPath path, const QList<int>& roles = {});

    platform::TableDataSource& source_;
    std::vector<Row> rows_;
    std::vector<Section> sections_;
    QStringList indexTitles_;
    std::vector<std::string> rawIndexTitles_;
    std::optional<platform::IndexPath> selected_;

    std::vector<platform::SwipeAction> actions_;
    std::optional<platform::IndexPath> actionsPath_;

    /// The cell that was asked for last: a delegate reads all roles in a row.
    mutable std::optional<platform::TableCell> cell_;
    mutable platform::IndexPath cellPath_;
    mutable IndicatorPool indicators_;

    bool loaded_ = false;
    bool loading_ = false;
    bool loadAgain_ = false;
    /// The rows are those of before the controller changed: it is not asked
    /// about them any more.
    bool stale_ = false;
    /// How many calls to the controller are under way.
    mutable int sourceCalls_ = 0;
    /// Counts the reloads, so that a late completion hides no new row.
    int generation_ = 0;
};

} // namespace lumora::qt
