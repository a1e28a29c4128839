// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QMarginsF>
#include <QString>

class QPagedPaintDevice;
class QSizeF;
class QTextDocument;

namespace lumora::qt {

/// Millimetres of white around a page.
inline constexpr QMarginsF kPageMargins{15, 15, 15, 12};

/// Lays the document out for pages of `size`, in the units of its paint device:
/// as large as all of it stands on one page with its words whole, and with
/// words whole where one page is too few. The answer is the scale to paint at,
/// 1 or a little less.
double fitToPages(QTextDocument& document, const QSizeF& size);

/// Lays a page of HTML out on the device's paper and paints it, with the title
/// and the page's number at the foot of each page. Reentrant. False when the
/// device could not begin or take a page.
bool paintDocument(const QString& html, const QString& title, QPagedPaintDevice& device);

/// The page as a PDF on A4 paper; empty when it could not be made.
QByteArray pdfOf(const QString& html, const QString& title);

} // namespace lumora::qt
