// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/desktop_documents.h"

#include "qt/portal.h"

#include <QDBusUnixFileDescriptor>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include <utility>

namespace lumora::qt {

namespace {

const QString kFileChooser = QStringLiteral("org.freedesktop.portal.FileChooser");
const QString kPrint = QStringLiteral("org.freedesktop.portal.Print");
const QString kNoParentWindow;

/// As file names go over the bus, which need not be text.
QByteArray terminated(const QString& path)
{
    auto bytes = QFile::encodeName(path);
    bytes.append('\0');
    return bytes;
}

/// The document behind a descriptor that reads it from its beginning, with no
/// file left anywhere; invalid when there was no place for it.
QDBusUnixFileDescriptor readable(const QByteArray& document)
{
    QTemporaryFile file;
    if (!file.open() || file.write(document) != document.size() || !file.flush()) {
        return {};
    }
    QFile reader{file.fileName()};
    return reader.open(QIODevice::ReadOnly) ? QDBusUnixFileDescriptor{reader.handle()}
                                            : QDBusUnixFileDescriptor{};
}

} // namespace

DesktopDocuments::DesktopDocuments(Desktop desktop) : desktop_{std::move(desktop)} {}

bool DesktopDocuments::hasSaveDialog() const
{
    return portal::version(desktop_.bus, kFileChooser).has_value();
}

void DesktopDocuments::askWhereToSave(const QString& title, const QUrl& suggestion,
                                      std::function<void(const QUrl&)> chosen,
                                      std::function<void()> failed)
{
    const QFileInfo file{suggestion.toLocalFile()};
    const QVariantMap options{
        {QStringLiteral("current_name"), file.fileName()},
        {QStringLiteral("current_folder"), terminated(file.absolutePath())},
    };
    portal::Request::send(
        desktop_.bus, kFileChooser, QStringLiteral("SaveFile"), {kNoParentWindow, title}, options,
        [chosen = std::move(chosen), failed = std::move(failed)](portal::Answer answer,
                                                                 const QVariantMap& results) {
            const auto files = results.value(QStringLiteral("uris")).toStringList();
            if (answer == portal::Answer::Done && !files.isEmpty()) {
                chosen(QUrl{files.first()});
            } else if (answer != portal::Answer::Cancelled) {
                failed();
            }
        },
        this);
}

bool DesktopDocuments::hasPrintDialog() const
{
    return portal::version(desktop_.bus, kPrint).has_value();
}

void DesktopDocuments::print(const QString& title, const QByteArray& pdf,
                             std::function<void()> failed)
{
    const auto document = readable(pdf);
    if (!document.isValid()) {
        QMetaObject::invokeMethod(this, std::move(failed), Qt::QueuedConnection);
        return;
    }
    portal::Request::send(
        desktop_.bus, kPrint, QStringLiteral("Print"),
        {kNoParentWindow, title, QVariant::fromValue(document)}, {},
        [failed = std::move(failed)](portal::Answer answer, const QVariantMap& /*results*/) {
            if (answer == portal::Answer::Failed) {
                failed();
            }
        },
        this);
}

} // namespace lumora::qt
