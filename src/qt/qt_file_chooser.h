// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/file_chooser.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>
#include <QUrl>

namespace lumora::qt {

/// The question about a file that the window asks with the desktop's dialog.
/// GUI thread only.
class QtFileChooser final : public QObject, public platform::FileChooser {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the program")
    Q_PROPERTY(bool asking READ asking NOTIFY questionChanged)
    Q_PROPERTY(bool saving READ isSaving NOTIFY questionChanged)
    Q_PROPERTY(QString title READ title NOTIFY questionChanged)
    Q_PROPERTY(QString nameFilter READ nameFilter NOTIFY questionChanged)
    Q_PROPERTY(QString suffix READ suffix NOTIFY questionChanged)
    Q_PROPERTY(QUrl folder READ folder NOTIFY questionChanged)
    Q_PROPERTY(QUrl suggestedFile READ suggestedFile NOTIFY questionChanged)

public:
    /// Where the first question begins.
    explicit QtFileChooser(QUrl folder);

    void choose(const platform::FileQuestion& question,
                std::function<void(const std::filesystem::path&)> chosen) override;

    bool asking() const { return chosen_ != nullptr; }
    bool isSaving() const { return question_.purpose == platform::FileQuestion::Purpose::Save; }
    QString title() const;
    QString nameFilter() const;
    QString suffix() const;
    /// Where the last file was.
    QUrl folder() const { return folder_; }
    QUrl suggestedFile() const;

    Q_INVOKABLE void accept(const QUrl& file);
    Q_INVOKABLE void dismiss();

signals:
    void questionChanged();

private:
    platform::FileQuestion question_;
    std::function<void(const std::filesystem::path&)> chosen_;
    QUrl folder_;
};

} // namespace lumora::qt
