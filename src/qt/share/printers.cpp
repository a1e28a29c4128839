// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/share/printers.h"

#include "qt/share/document_printing.h"

#include <QCoreApplication>
#include <QPrinter>
#include <QPrinterInfo>

#include <algorithm>

namespace lumora::qt {

QList<Printer> availablePrinters()
{
    QList<Printer> printers;
    for (const auto& info : QPrinterInfo::availablePrinters()) {
        const auto description = info.description();
        printers.append(
            {info.printerName(), description.isEmpty() ? info.printerName() : description});
    }
    const auto preferred = QPrinterInfo::defaultPrinterName();
    std::stable_partition(printers.begin(), printers.end(),
                          [&](const Printer& printer) { return printer.name == preferred; });
    return printers;
}

bool printDocument(const QString& html, const QString& title, const QString& printerName)
{
    QPrinter printer{QPrinterInfo::printerInfo(printerName), QPrinter::HighResolution};
    if (!printer.isValid()) {
        return false;
    }
    printer.setDocName(title);
    printer.setCreator(QCoreApplication::applicationName());
    // A printer that needs wider margins keeps its own.
    printer.setPageMargins(kPageMargins, QPageLayout::Millimeter);
    return paintDocument(html, title, printer) && printer.printerState() != QPrinter::Error;
}

} // namespace lumora::qt
