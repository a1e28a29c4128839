// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "qt/desktop/desktop.h"
#include "qt/desktop/portal.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QVariantMap>

#include <functional>

namespace lumora::qt {

/// The desktop's own dialogs for documents, where its portal has them.
class DesktopDocuments final : public QObject {
public:
    explicit DesktopDocuments(const Desktop& desktop);

    bool hasFileDialog() const;
    /// `chosen` gets the file, or `failed` is called when the dialog could not
    /// ask; neither when the person chose none. From the event loop, while this
    /// lives. The dialog asks before a file is replaced.
    void askWhereToSave(const QString& title, const QString& suggestion,
                        std::function<void(const QString&)> chosen, std::function<void()> failed);

    /// As askWhereToSave(), for a file to read: one whose name has the ending,
    /// which `kind` names. The dialog begins in `folder`.
    void askWhatToOpen(const QString& title, const QString& kind, const QString& suffix,
                       const QString& folder, std::function<void(const QString&)> chosen,
                       std::function<void()> failed);

    bool hasPrintDialog() const;
    /// `failed` is called from the event loop, while this lives, when nothing
    /// could be printed; to decide against it is no failure.
    void print(const QString& title, const QByteArray& pdf, std::function<void()> failed);

private:
    void askForFile(const QString& method, const QString& title, const QVariantMap& options,
                    std::function<void(const QString&)> chosen, std::function<void()> failed);

    QDBusConnection bus_;
    portal::Version fileChooser_;
    portal::Version print_;
};

} // namespace lumora::qt
