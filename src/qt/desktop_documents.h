// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "qt/desktop.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QUrl>

#include <functional>

namespace lumora::qt {

/// The desktop's own dialogs for documents, where its portal has them.
class DesktopDocuments final : public QObject {
public:
    explicit DesktopDocuments(Desktop desktop);

    bool hasSaveDialog() const;
    /// `chosen` gets the file, or `failed` is called when the dialog could not
    /// ask; neither when the person chose none. From the event loop, while this
    /// lives. The dialog asks before a file is replaced.
    void askWhereToSave(const QString& title, const QUrl& suggestion,
                        std::function<void(const QUrl&)> chosen, std::function<void()> failed);

    bool hasPrintDialog() const;
    /// `failed` is called from the event loop, while this lives, when nothing
    /// could be printed; to decide against it is no failure.
    void print(const QString& title, const QByteArray& pdf, std::function<void()> failed);

private:
    Desktop desktop_;
};

} // namespace lumora::qt
