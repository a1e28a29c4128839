// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>

namespace lumora::qt {

/// Where the user looks for files.
QString documentsFolder();

/// A file of the folder that is not there yet, named after `title`:
/// "aller.txt", "aller 2.txt" and so on.
QString freeFile(const QString& folder, const QString& title, const QString& suffix);

/// Writes the whole file or leaves what was there; false when it could not.
bool saveFile(const QString& file, const QByteArray& content);

} // namespace lumora::qt
