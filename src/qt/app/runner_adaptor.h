// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusArgument>
#include <QList>
#include <QString>
#include <QVariantMap>

namespace lumora::qt {

class SearchProvider;

/// A result as KRunner takes it: "(sssida{sv})".
struct RunnerMatch {
    QString id;
    QString text;
    QString icon;
    int kind = 0;
    /// From 0 to 1.
    double relevance = 0;
    QVariantMap properties;
};

/// What else can be done with a result: "(sss)".
struct RunnerAction {
    QString id;
    QString text;
    QString icon;
};

/// KRunner's names for the desktop's search.
class RunnerAdaptor final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.krunner1")

public:
    explicit RunnerAdaptor(SearchProvider& provider);

    /// There are none.
    Q_SLOT QList<lumora::qt::RunnerAction> Actions() { return {}; }
    Q_SLOT QList<lumora::qt::RunnerMatch> Match(const QString& query);
    Q_SLOT void Run(const QString& match, const QString& action);

private:
    SearchProvider& provider_;
};

QDBusArgument& operator<<(QDBusArgument& argument, const RunnerMatch& match);
const QDBusArgument& operator>>(const QDBusArgument& argument, RunnerMatch& match);
QDBusArgument& operator<<(QDBusArgument& argument, const RunnerAction& action);
const QDBusArgument& operator>>(const QDBusArgument& argument, RunnerAction& action);

} // namespace lumora::qt
