// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>

class QPagedPaintDevice;

namespace lumora::qt {

/// Lays a page of HTML out on the device's paper and paints it, with the title
/// and the page's number at the foot of each page. Reentrant. False when the
/// device could not begin or take a page.
bool paintDocument(const QString& html, const QString& title, QPagedPaintDevice& device);

/// The page as a PDF on A4 paper; empty when it could not be made.
QByteArray pdfOf(const QString& html, const QString& title);

} // namespace lumora::qt
