// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/desktop/running_instance.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>

#include <algorithm>
#include <utility>
#include <vector>

namespace lumora::qt {

namespace {

const QString kName = QStringLiteral("com.brindle.lumora");
const QString kObjectPath = QStringLiteral("/com/brindle/lumora");
const QString kInterface = QStringLiteral("org.freedesktop.Application");
const QString kLookUp = QStringLiteral("look-up");
const QString kShortcutPrefix = QStringLiteral("com.brindle.shortcut.");
// Wayland's name for it and X11's.
const QString kActivationToken = QStringLiteral("activation-token");
const QString kStartupId = QStringLiteral("desktop-startup-id");

/// A first start that prepares a new database is busy for a while.
constexpr int kHandOverTimeoutMs = 10000;

QVariantMap platformDataOf(const InstanceRequest& request)
{
    if (request.activationToken.isEmpty()) {
        return {};
    }
    return {{kActivationToken, request.activationToken}, {kStartupId, request.activationToken}};
}

QString tokenIn(const QVariantMap& platformData)
{
    const auto token = platformData.value(kActivationToken).toString();
    return token.isEmpty() ? platformData.value(kStartupId).toString() : token;
}

std::vector<QDBusMessage> callsFor(const InstanceRequest& request)
{
    const auto callOf = [](const char* method, const QVariantList& arguments) {
        auto call = QDBusMessage::createMethodCall(kName, kObjectPath, kInterface,
                                                   QString::fromLatin1(method));
        call.setAutoStartService(false);
        call.setArguments(arguments);
        return call;
    };
    const auto platformData = platformDataOf(request);
    std::vector<QDBusMessage> calls;
    if (request.shortcut && request.shortcut->startsWith(kShortcutPrefix)) {
        calls.push_back(callOf("ActivateAction", {request.shortcut->mid(kShortcutPrefix.size()),
                                                  QVariant{QVariantList{}}, platformData}));
    }
    if (request.text) {
        calls.push_back(callOf(
            "ActivateAction", {kLookUp, QVariant{QVariantList{request.text->text}}, platformData}));
    }
    if (!request.links.isEmpty()) {
        calls.push_back(callOf("Open", {request.links, platformData}));
    }
    if (calls.empty()) {
        calls.push_back(callOf("Activate", {platformData}));
    }
    return calls;
}

} // namespace

RunningInstance::RunningInstance(QDBusConnection bus) : bus_{std::move(bus)}
{
    // Owned by this object.
    new ApplicationAdaptor{*this};
}

RunningInstance::Role RunningInstance::start(const InstanceRequest& request)
{
    // The object first: requests come as soon as the name is there.
    if (!bus_.isConnected() || !bus_.registerObject(kObjectPath, this)) {
        return Role::First;
    }
    if (takeName()) {
        return Role::First;
    }
    if (handOver(request)) {
        return Role::Second;
    }
    // Perhaps it was just ending.
    return takeName() ? Role::First : Role::NoAnswer;
}

bool RunningInstance::takeName() const
{
    const auto taken =
        bus_.interface()->registerService(kName, QDBusConnectionInterface::DontQueueService,
                                          QDBusConnectionInterface::DontAllowReplacement);
    return !taken.isValid() || taken.value() == QDBusConnectionInterface::ServiceRegistered;
}

bool RunningInstance::handOver(const InstanceRequest& request) const
{
    const auto calls = callsFor(request);
    return std::all_of(calls.begin(), calls.end(), [this](const QDBusMessage& call) {
        return bus_.call(call, QDBus::Block, kHandOverTimeoutMs).type() !=
               QDBusMessage::ErrorMessage;
    });
}

ApplicationAdaptor::ApplicationAdaptor(RunningInstance& instance)
    : QDBusAbstractAdaptor{&instance}, instance_{instance}
{}

void ApplicationAdaptor::Activate(const QVariantMap& platformData)
{
    emit instance_.requested({{}, {}, tokenIn(platformData)});
}

void ApplicationAdaptor::Open(const QStringList& uris, const QVariantMap& platformData)
{
    emit instance_.requested({{}, uris, tokenIn(platformData)});
}

void ApplicationAdaptor::ActivateAction(const QString& action, const QVariantList& parameters,
                                        const QVariantMap& platformData)
{
    if (action == kLookUp) {
        emit instance_.requested(
            {{}, {}, tokenIn(platformData), TextRequest{parameters.value(0).toString()}});
        return;
    }
    emit instance_.requested({kShortcutPrefix + action, {}, tokenIn(platformData)});
}

} // namespace lumora::qt
