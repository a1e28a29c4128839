// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>
#include <QString>

namespace lumora::qt {

struct Printer {
    /// What the system calls it.
    QString name;
    /// For people; the name where there is nothing better.
    QString description;
};

/// The machine's printers, the default one first. May wait for the network;
/// not on the GUI thread, but one call at a time.
QList<Printer> availablePrinters();

/// Prints a page of HTML, under the same rules. False when the printer did not
/// take it.
bool printDocument(const QString& html, const QString& title, const QString& printerName);

} // namespace lumora::qt
