// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/desktop/desktop_documents.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusUnixFileDescriptor>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>
#include <QUrl>

#include <utility>

namespace {

/// A way to tell files by their names, as the portal wants it.
struct FilePattern {
    uint kind = 0;
    QString pattern;
};

struct FileFilter {
    QString name;
    QList<FilePattern> patterns;
};

constexpr uint kShellPattern = 0;

QDBusArgument& operator<<(QDBusArgument& argument, const FilePattern& pattern)
{
    argument.beginStructure();
    argument << pattern.kind << pattern.pattern;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const FileFilter& filter)
{
    argument.beginStructure();
    argument << filter.name << filter.patterns;
    argument.endStructure();
    return argument;
}

// Never read; but what goes over the bus must be able to come back.
const QDBusArgument& operator>>(const QDBusArgument& argument, FilePattern& pattern)
{
    argument.beginStructure();
    argument >> pattern.kind >> pattern.pattern;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, FileFilter& filter)
{
    argument.beginStructure();
    argument >> filter.name >> filter.patterns;
    argument.endStructure();
    return argument;
}

void registerFilters()
{
    qDBusRegisterMetaType<FilePattern>();
    qDBusRegisterMetaType<QList<FilePattern>>();
    qDBusRegisterMetaType<FileFilter>();
    qDBusRegisterMetaType<QList<FileFilter>>();
}

} // namespace

Q_DECLARE_METATYPE(FilePattern)
Q_DECLARE_METATYPE(FileFilter)

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

DesktopDocuments::DesktopDocuments(const Desktop& desktop)
    : bus_{desktop.bus}, fileChooser_{bus_, kFileChooser}, print_{bus_, kPrint}
{}

bool DesktopDocuments::hasFileDialog() const
{
    return fileChooser_.exists();
}

void DesktopDocuments::askWhereToSave(const QString& title, const QString& suggestion,
                                      std::function<void(const QString&)> chosen,
                                      std::function<void()> failed)
{
    const QFileInfo file{suggestion};
    const QVariantMap options{
        {QStringLiteral("current_name"), file.fileName()},
        {QStringLiteral("current_folder"), terminated(file.absolutePath())},
    };
    askForFile(QStringLiteral("SaveFile"), title, options, std::move(chosen), std::move(failed));
}

void DesktopDocuments::askWhatToOpen(const QString& title, const QString& kind,
                                     const QString& suffix, const QString& folder,
                                     std::function<void(const QString&)> chosen,
                                     std::function<void()> failed)
{
    registerFilters();
    const QList<FileFilter> filters{{kind, {{kShellPattern, QStringLiteral("*.") + suffix}}}};
    const QVariantMap options{
        {QStringLiteral("filters"), QVariant::fromValue(filters)},
        {QStringLiteral("current_folder"), terminated(folder)},
    };
    askForFile(QStringLiteral("OpenFile"), title, options, std::move(chosen), std::move(failed));
}

void DesktopDocuments::askForFile(const QString& method, const QString& title,
                                  const QVariantMap& options,
                                  std::function<void(const QString&)> chosen,
                                  std::function<void()> failed)
{
    portal::Request::send(
        bus_, kFileChooser, method, {kNoParentWindow, title}, options,
        [chosen = std::move(chosen), failed = std::move(failed)](portal::Answer answer,
                                                                 const QVariantMap& results) {
            const auto files = results.value(QStringLiteral("uris")).toStringList();
            if (answer == portal::Answer::Done && !files.isEmpty()) {
                // What is not on this machine fails with the name that the person knows.
                const QUrl file{files.first()};
                chosen(file.isLocalFile() ? file.toLocalFile() : file.toDisplayString());
            } else if (answer != portal::Answer::Cancelled) {
                failed();
            }
        },
        this);
}

bool DesktopDocuments::hasPrintDialog() const
{
    return print_.exists();
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
        bus_, kPrint, QStringLiteral("Print"),
        {kNoParentWindow, title, QVariant::fromValue(document)}, {},
        [failed = std::move(failed)](portal::Answer answer, const QVariantMap& /*results*/) {
            if (answer == portal::Answer::Failed) {
                failed();
            }
        },
        this);
}

} // namespace lumora::qt
