// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/models/qt_table_view.h"

#include "qt/base/text_conversion.h"

#include <QQmlEngine>

namespace lumora::qt {

QtTableView::QtTableView(platform::TableDataSource& source) : model_{source}
{
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
    QQmlEngine::setObjectOwnership(&model_, QQmlEngine::CppOwnership);
}

QString QtTableView::emptyText() const
{
    return background_ ? toQString(background_->text) : QString{};
}

void QtTableView::setSeparatorStyle(platform::SeparatorStyle style)
{
    separatorStyle_ = style;
    emit looksChanged();
}

void QtTableView::setBackgroundView(const platform::EmptyStateView& view)
{
    background_ = view;
    emit looksChanged();
}

void QtTableView::setBackgroundViewHidden(bool hidden)
{
    backgroundHidden_ = hidden;
    emit looksChanged();
}

} // namespace lumora::qt
