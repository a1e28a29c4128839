// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/qt_file_chooser.h"

#include "qt/text_conversion.h"

#include <QFile>
#include <QQmlEngine>

#include <utility>

namespace lumora::qt {

QtFileChooser::QtFileChooser(QUrl folder) : folder_{std::move(folder)}
{
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
}

void QtFileChooser::choose(const platform::FileQuestion& question,
                           std::function<void(const std::filesystem::path&)> chosen)
{
    dismiss();
    question_ = question;
    chosen_ = std::move(chosen);
    emit questionChanged();
}

QString QtFileChooser::title() const
{
    return toQString(question_.title);
}

QString QtFileChooser::nameFilter() const
{
    return toQString(question_.kind + " (*." + question_.extension + ")");
}

QString QtFileChooser::suffix() const
{
    return toQString(question_.extension);
}

QUrl QtFileChooser::suggestedFile() const
{
    auto file = folder_;
    file.setPath(file.path() + u'/' + toQString(question_.suggestedName));
    return file;
}

void QtFileChooser::accept(const QUrl& file)
{
    if (!asking()) {
        return;
    }
    folder_ = file.adjusted(QUrl::RemoveFilename | QUrl::StripTrailingSlash);
    const auto chosen = std::exchange(chosen_, nullptr);
    emit questionChanged();
    // What is not on this machine fails with the name that the person knows.
    const auto path = file.isLocalFile() ? file.toLocalFile() : file.toDisplayString();
    chosen(QFile::encodeName(path).toStdString());
}

void QtFileChooser::dismiss()
{
    if (std::exchange(chosen_, nullptr) != nullptr) {
        emit questionChanged();
    }
}

} // namespace lumora::qt
