// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

namespace lumora::qt {

/// A file of the user's documents folder that is not there yet, named after
/// `title`: "aller.txt", "aller 2.txt" and so on.
QUrl freeDocument(const QString& title, const QString& suffix);

/// Writes the whole file or leaves what was there; false when it could not.
bool saveFile(const QUrl& file, const QByteArray& content);

} // namespace lumora::qt
