// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "qt/desktop/message_bus.h"

#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QMap>
#include <QThread>
#include <QVariantMap>

#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace lumora::support {

/// The desktop's portal on a test's bus, in a thread of its own since its
/// clients wait for answers.
class StandInPortal {
public:
    struct Behaviour {
        /// By interface; others are not there.
        QMap<QString, uint> versions = {};
        /// What every request ends with; none: it never ends.
        std::optional<uint> response = 0;
        /// What a request that is done is answered with.
        QVariantMap results = {};
        /// As old portals: the request's object has a path that only the reply
        /// to the call tells.
        bool choosesPaths = false;
        /// By group and key.
        QMap<QString, QVariantMap> settings = {};
    };
    struct Call {
        QString member;
        /// Before the options.
        QVariantList arguments;
        QVariantMap options;
    };

    StandInPortal(MessageBus& bus, Behaviour behaviour);
    ~StandInPortal();

    std::vector<Call> requests() const;
    void changeSetting(const QString& group, const QString& key, const QVariant& value);

private:
    class Object;

    QDBusConnection connection_;
    QThread thread_;
    std::unique_ptr<Object> object_;
};

} // namespace lumora::support
