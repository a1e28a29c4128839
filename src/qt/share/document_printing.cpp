// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/share/document_printing.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QCoreApplication>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>
#include <array>

namespace lumora::qt {

namespace {

constexpr int kPdfResolution = 300;
constexpr double kFooterPoints = 8;
constexpr double kPointsPerInch = 72;
/// Between the text and the foot, in lines of the foot.
constexpr double kFooterLines = 2;
/// Smaller than the last one is hard to read.
constexpr std::array kScales{1.0, 0.92, 0.84, 0.76, 0.7};
constexpr QColor kFooterInk{0x66, 0x66, 0x66};

void paintFooter(QPainter& painter, const QRectF& foot, const QFont& font, const QString& title,
                 int page, int count)
{
    painter.setFont(font);
    painter.setPen(kFooterInk);
    painter.drawText(foot, Qt::AlignLeft | Qt::AlignBottom, title);
    painter.drawText(foot, Qt::AlignRight | Qt::AlignBottom,
                     QStringLiteral("%1 / %2").arg(page).arg(count));
}

/// Whether a line ends in the middle of a word because its column is narrow.
bool breaksWords(const QTextDocument& document)
{
    for (auto block = document.begin(); block.isValid(); block = block.next()) {
        const auto* layout = block.layout();
        const auto text = block.text();
        for (int line = 0; line + 1 < layout->lineCount(); ++line) {
            const auto end = layout->lineAt(line).textStart() + layout->lineAt(line).textLength();
            if (end < text.size() && text[end - 1].isLetter() && text[end].isLetter()) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

double fitToPages(QTextDocument& document, const QSizeF& size)
{
    double fallback = kScales.back();
    for (const double scale : kScales) {
        document.setPageSize(size / scale);
        const bool whole = !breaksWords(document);
        if (whole && document.pageCount() == 1) {
            return scale;
        }
        fallback = whole ? std::max(fallback, scale) : fallback;
    }
    document.setPageSize(size / fallback);
    return fallback;
}

bool paintDocument(const QString& html, const QString& title, QPagedPaintDevice& device)
{
    QPainter painter;
    if (!painter.begin(&device)) {
        return false;
    }
    QTextDocument document;
    // Sizes in points come out as such on the device.
    document.documentLayout()->setPaintDevice(&device);
    document.setDocumentMargin(0);
    document.setHtml(html);

    const QRectF paper{0, 0, static_cast<double>(device.width()),
                       static_cast<double>(device.height())};
    const double line = kFooterPoints / kPointsPerInch * device.logicalDpiY();
    const QSizeF body{paper.width(), paper.height() - (1 + kFooterLines) * line};
    const double scale = fitToPages(document, body);
    const double height = document.pageSize().height();
    QFont font = document.defaultFont();
    font.setPointSizeF(kFooterPoints);

    const int count = document.pageCount();
    for (int page = 0; page < count; ++page) {
        if (page > 0 && !device.newPage()) {
            painter.end();
            return false;
        }
        QAbstractTextDocumentLayout::PaintContext context;
        // What the document does not colour is ink, whatever the screen's
        // colours are.
        context.palette.setColor(QPalette::Text, Qt::black);
        context.clip = QRectF{{0, page * height}, document.pageSize()};
        painter.save();
        painter.scale(scale, scale);
        painter.translate(0, -page * height);
        painter.setClipRect(context.clip);
        document.documentLayout()->draw(&painter, context);
        painter.restore();
        paintFooter(painter, paper, font, title, page + 1, count);
    }
    return painter.end();
}

QByteArray pdfOf(const QString& html, const QString& title)
{
    QByteArray bytes;
    QBuffer buffer{&bytes};
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer{&buffer};
        writer.setResolution(kPdfResolution);
        writer.setPageSize(QPageSize{QPageSize::A4});
        writer.setPageMargins(kPageMargins, QPageLayout::Millimeter);
        writer.setTitle(title);
        writer.setCreator(QCoreApplication::applicationName());
        if (!paintDocument(html, title, writer)) {
            return {};
        }
    }
    return bytes;
}

} // namespace lumora::qt
