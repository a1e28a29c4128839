// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QDBusConnection>
#include <QString>

#include <functional>
#include <string>

namespace lumora::qt {

/// What the program may reach of the desktop around it: by default nothing, so that a
/// test reaches only what it provides.
struct Desktop {
    QDBusConnection bus{QString{}};
    /// As hasUrlHandler().
    std::function<bool(const std::string& scheme)> hasUrlHandler =
        [](const std::string& /*scheme*/) { return false; };
    /// Whether the desktop's lists of programs are out of reach, so that a
    /// portal has to be trusted to find one.
    bool sandboxed = false;
};

} // namespace lumora::qt
