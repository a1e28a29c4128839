// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/share/qt_file_chooser.h"

#include "qt/base/text_conversion.h"
#include "qt/share/saved_file.h"

#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QQmlEngine>

#include <utility>

namespace lumora::qt {

QtFileChooser::QtFileChooser(platform::Presenter& presenter, const Desktop& desktop)
    : presenter_{presenter}, desktop_{desktop}
{
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
}

void QtFileChooser::choose(const platform::FileQuestion& question,
                           std::function<void(const std::filesystem::path&)> chosen)
{
    dismiss();
    question_ = question;
    chosen_ = std::move(chosen);
    ++number_;
    const auto suggestion =
        freeFile(folder_.isEmpty() ? documentsFolder() : folder_,
                 toQString(question_.suggestedName), toQString(question_.extension));
    if (desktop_.hasFileDialog()) {
        askDesktop(suggestion);
    } else {
        askInWindow(suggestion);
    }
}

QString QtFileChooser::title() const
{
    return toQString(question_.title);
}

void QtFileChooser::askDesktop(const QString& suggestion)
{
    const auto taken = [this, number = number_](const QString& file) {
        if (number == number_) {
            finish(file);
        }
    };
    const auto failed = [this, number = number_, suggestion] {
        if (number == number_) {
            askInWindow(suggestion);
        }
    };
    if (isSaving()) {
        desktop_.askWhereToSave(title(), suggestion, taken, failed);
    } else {
        desktop_.askWhatToOpen(title(), toQString(question_.kind), toQString(question_.extension),
                               QFileInfo{suggestion}.absolutePath(), taken, failed);
    }
}

void QtFileChooser::askInWindow(const QString& suggestion)
{
    location_.begin(suggestion);
    setAsking(true);
}

void QtFileChooser::setAsking(bool asking)
{
    if (asking_ != asking) {
        asking_ = asking;
        emit askingChanged();
    }
}

void QtFileChooser::acceptLocation()
{
    if (!asking_ || !location_.isAcceptable()) {
        return;
    }
    const auto file = location_.file();
    if (!QFileInfo::exists(file)) {
        finish(file);
        return;
    }
    const auto replace = [self = QPointer{this}, file, number = number_] {
        if (self && self->asking_ && self->number_ == number) {
            self->finish(file);
        }
    };
    presenter_.presentAlert(
        screen_, {std::nullopt,
                  toUtf8(qtTrId("file.exists").arg(QFileInfo{file}.fileName())),
                  {{toUtf8(qtTrId("export.cancel")), platform::ActionStyle::Cancel, nullptr},
                   {toUtf8(qtTrId("file.replace")), platform::ActionStyle::Destructive, replace}}});
}

void QtFileChooser::acceptFile(const QString& name)
{
    if (asking_ && location_.files().contains(name)) {
        location_.setName(name);
        finish(location_.file());
    }
}

void QtFileChooser::finish(const QString& file)
{
    folder_ = QFileInfo{file}.absolutePath();
    const auto chosen = std::exchange(chosen_, nullptr);
    setAsking(false);
    if (chosen) {
        chosen(QFile::encodeName(file).toStdString());
    }
}

void QtFileChooser::dismiss()
{
    if (asking_) {
        chosen_ = nullptr;
        setAsking(false);
    }
}

} // namespace lumora::qt
