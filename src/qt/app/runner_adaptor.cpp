// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/app/runner_adaptor.h"

#include "qt/app/search_provider.h"

#include <QDBusMetaType>

namespace lumora::qt {

RunnerAdaptor::RunnerAdaptor(SearchProvider& provider)
    : QDBusAbstractAdaptor{&provider}, provider_{provider}
{
    qDBusRegisterMetaType<RunnerMatch>();
    qDBusRegisterMetaType<QList<RunnerMatch>>();
    qDBusRegisterMetaType<RunnerAction>();
    qDBusRegisterMetaType<QList<RunnerAction>>();
}

QList<RunnerMatch> RunnerAdaptor::Match(const QString& query)
{
    // KRunner's "possible match": a French form may be a word of any language.
    constexpr int kPossible = 30;
    QList<RunnerMatch> matches;
    for (const auto& found : provider_.describe(provider_.search({query}))) {
        matches.append({found.value(QStringLiteral("id")).toString(),
                        found.value(QStringLiteral("name")).toString(),
                        found.value(QStringLiteral("gicon")).toString(),
                        kPossible,
                        1.0 / static_cast<double>(matches.size() + 1),
                        {{QStringLiteral("subtext"), found.value(QStringLiteral("description"))}}});
    }
    return matches;
}

void RunnerAdaptor::Run(const QString& match, const QString& /*action*/)
{
    provider_.open(match);
}

QDBusArgument& operator<<(QDBusArgument& argument, const RunnerMatch& match)
{
    argument.beginStructure();
    argument << match.id << match.text << match.icon << match.kind << match.relevance
             << match.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, RunnerMatch& match)
{
    argument.beginStructure();
    argument >> match.id >> match.text >> match.icon >> match.kind >> match.relevance >>
        match.properties;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const RunnerAction& action)
{
    argument.beginStructure();
    argument << action.id << action.text << action.icon;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, RunnerAction& action)
{
    argument.beginStructure();
    argument >> action.id >> action.text >> action.icon;
    argument.endStructure();
    return argument;
}

} // namespace lumora::qt
