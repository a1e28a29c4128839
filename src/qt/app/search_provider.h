// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/desktop_search.h"
#include "platform/storage/file_settings_store.h"
#include "qt/base/standard_folders.h"
#include "qt/desktop/running_instance.h"
#include "qt/machine/qt_bundle.h"
#include "qt/machine/qt_device.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QList>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <vector>

namespace lumora::qt {

/// Answers the search of GNOME's shell and KRunner with verbs and forms, window or not. Reads
/// nothing before the first search.
class SearchProvider final : public QObject {
    Q_OBJECT

public:
    /// Is on the bus from now on; the name there is RunningInstance's to take, later.
    SearchProvider(QDBusConnection bus, const StandardFolders& folders,
                   const std::filesystem::path& shareFolder);

    QStringList search(const QStringList& words);
    QList<QVariantMap> describe(const QStringList& ids);
    void open(const QString& id);
    void openSearch(const QStringList& words);

signals:
    /// Somebody searches.
    void asked();
    /// A result, or the search itself, is wanted in the window.
    void requested(const lumora::qt::InstanceRequest& request);

private:
    platform::FileSettingsStore settings_;
    QtBundle bundle_;
    QtDevice device_{{}};
    app::DesktopSearch search_;
};

/// The shell's names for that.
class SearchProviderAdaptor final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.gnome.Shell.SearchProvider2")

public:
    explicit SearchProviderAdaptor(SearchProvider& provider)
        : QDBusAbstractAdaptor{&provider}, provider_{provider}
    {}

    Q_SLOT QStringList GetInitialResultSet(const QStringList& terms);
    Q_SLOT QStringList GetSubsearchResultSet(const QStringList& previous, const QStringList& terms);
    Q_SLOT QList<QVariantMap> GetResultMetas(const QStringList& identifiers);
    Q_SLOT void ActivateResult(const QString& identifier, const QStringList& terms, uint timestamp);
    Q_SLOT void LaunchSearch(const QStringList& terms, uint timestamp);

private:
    SearchProvider& provider_;
};

} // namespace lumora::qt
