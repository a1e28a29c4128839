// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/collection_view.h"
#include "qt/models/indicator_source.h"
#include "qt/models/line_style_value.h"

#include <QAbstractListModel>

#include <optional>

namespace lumora::qt {

/// One line of a cell: two texts and the control that goes with them.
struct CollectionLine {
    Q_GADGET
    QML_VALUE_TYPE(collectionLine)
    Q_PROPERTY(QString leading MEMBER leading FINAL)
    Q_PROPERTY(QString trailing MEMBER trailing FINAL)
    Q_PROPERTY(QString accessibleName MEMBER accessibleName FINAL)
    Q_PROPERTY(lumora::qt::LineStyleValue lineStyle MEMBER lineStyle FINAL)
    Q_PROPERTY(double audioWidth MEMBER audioWidth FINAL)
    Q_PROPERTY(double audioPadding MEMBER audioPadding FINAL)
    Q_PROPERTY(bool controlHidden MEMBER controlHidden FINAL)
    Q_PROPERTY(lumora::qt::IndicatorSource* indicator MEMBER indicator FINAL)

public:
    QString leading;
    QString trailing;
    QString accessibleName;
    LineStyleValue lineStyle;
    double audioWidth = 0;
    double audioPadding = 0;
    bool controlHidden = true;
    IndicatorSource* indicator = nullptr;
};

/// Any collection controller as a list of cells. Counts are asked once a
/// reload, cells when they are drawn. GUI thread only; the source must outlive
/// the model.
class CollectionItemModel final : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to a collection view")
    Q_PROPERTY(QString headerText READ headerText NOTIFY reloaded)
    Q_PROPERTY(double itemWidth READ itemWidth NOTIFY reloaded)
    Q_PROPERTY(double itemHeight READ itemHeight NOTIFY reloaded)
    Q_PROPERTY(double sectionInset READ sectionInset NOTIFY reloaded)
    Q_PROPERTY(double lineSpacing READ lineSpacing NOTIFY reloaded)

public:
    /// Each line has a role of its own: QML would copy a list of lines every time that
    /// it reads one of them.
    enum Role { TitleRole = Qt::UserRole + 1, FirstLineRole };
    static constexpr int kLines = 6;

    explicit CollectionItemModel(platform::CollectionDataSource& source);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;
    static const QHash<int, QByteArray>& names();

    /// Called by the controller while the model is calling it, the reload waits
    /// until that call has returned.
    void reloadData();
    void loadIfNeeded();

    QString headerText() const { return headerText_; }
    double itemWidth() const { return layout_.itemWidth; }
    double itemHeight() const { return layout_.itemHeight; }
    double sectionInset() const { return layout_.sectionInset; }
    double lineSpacing() const { return layout_.minimumLineSpacing; }

    Q_INVOKABLE void tapAudio(int item, int line);

signals:
    void reloaded();

private:
    const platform::CollectionCell& cell(int item) const;
    CollectionLine line(int item, std::size_t number) const;

    platform::CollectionDataSource& source_;
    int count_ = 0;
    QString headerText_;
    platform::CollectionLayout layout_;
    mutable std::optional<platform::CollectionCell> cell_;
    mutable int cellItem_ = -1;
    mutable IndicatorPool indicators_;
    bool loaded_ = false;
    mutable bool busy_ = false;
};

} // namespace lumora::qt
