// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/machine/file_chooser.h"
#include "platform/screens/presenter.h"
#include "qt/desktop/desktop_documents.h"
#include "qt/share/file_location.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace lumora::qt {

/// Asks about a file with the desktop's own dialog, in the window where the
/// desktop has none. GUI thread only.
class QtFileChooser final : public QObject, public platform::FileChooser {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the program")
    Q_PROPERTY(bool asking READ asking NOTIFY askingChanged)
    Q_PROPERTY(bool saving READ isSaving NOTIFY askingChanged)
    Q_PROPERTY(QString title READ title NOTIFY askingChanged)
    Q_PROPERTY(lumora::qt::FileLocation* location READ location CONSTANT)

public:
    /// The presenter must outlive this.
    QtFileChooser(platform::Presenter& presenter, const Desktop& desktop);

    void choose(const platform::FileQuestion& question,
                std::function<void(const std::filesystem::path&)> chosen) override;

    /// Whether the window has to ask.
    bool asking() const { return asking_; }
    bool isSaving() const { return question_.purpose == platform::FileQuestion::Purpose::Save; }
    QString title() const;
    FileLocation* location() { return &location_; }

    /// The file at the location, after a question where one is replaced.
    Q_INVOKABLE void acceptLocation();
    /// The file of that name in the location's folder.
    Q_INVOKABLE void acceptFile(const QString& name);
    /// Leaves a question in the window.
    Q_INVOKABLE void dismiss();

signals:
    void askingChanged();

private:
    void askDesktop(const QString& suggestion);
    void askInWindow(const QString& suggestion);
    void setAsking(bool asking);
    void finish(const QString& file);

    platform::Presenter& presenter_;
    /// Stands for the form where a screen is asked for.
    platform::ViewController screen_;
    platform::FileQuestion question_;
    std::function<void(const std::filesystem::path&)> chosen_;
    /// Counts the questions, so that a late answer to an earlier one is ignored.
    int number_ = 0;
    bool asking_ = false;
    /// Where the last file was; empty before the first.
    QString folder_;
    DesktopDocuments desktop_;
    FileLocation location_{this};
};

} // namespace lumora::qt
