// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <filesystem>
#include <optional>

namespace lumora::support {

/// A variable of this process that is another one for a scope.
class EnvironmentVariable {
public:
    EnvironmentVariable(const char* name, const std::filesystem::path& value) : name_{name}
    {
        if (qEnvironmentVariableIsSet(name)) {
            before_ = qgetenv(name);
        }
        qputenv(name, value.c_str());
    }
    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;
    ~EnvironmentVariable()
    {
        if (before_) {
            qputenv(name_, *before_);
        } else {
            qunsetenv(name_);
        }
    }

private:
    const char* name_;
    std::optional<QByteArray> before_;
};

} // namespace lumora::support
