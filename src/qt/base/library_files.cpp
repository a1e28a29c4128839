// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/base/library_files.h"

#include "qt/base/standard_folders.h"
#include "qt/base/text_conversion.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace lumora::qt {

namespace {

struct Place {
    const char* variable;
    const char* name;
};

constexpr Place kCompiledPages{"QML_DISK_CACHE_PATH", "qml"};
constexpr Place kShaders{"MESA_SHADER_CACHE_DIR", "shaders"};
constexpr Place kSoundCookie{"PULSE_COOKIE", "pulse-cookie"};

void settle(const Place& place, const std::filesystem::path& state)
{
    if (!qEnvironmentVariableIsSet(place.variable)) {
        qputenv(place.variable, (state / place.name).c_str());
    }
}

/// A sound server may ask for the cookie that is in this file.
bool hasSoundCookie()
{
    const auto config = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return QFile::exists(config + "/pulse/cookie") ||
           QFile::exists(QDir::homePath() + "/.pulse-cookie");
}

} // namespace

void keepLibraryFilesIn(const std::filesystem::path& state)
{
    settle(kCompiledPages, state);
    settle(kShaders, state);
    if (!hasSoundCookie()) {
        settle(kSoundCookie, state);
    }
}

QProcessEnvironment environmentForOthers()
{
    auto environment = QProcessEnvironment::systemEnvironment();
    const auto state = StandardFolders::fromEnvironment().state;
    for (const auto& place : {kCompiledPages, kShaders, kSoundCookie}) {
        if (environment.value(place.variable) == toQString((state / place.name).string())) {
            environment.remove(place.variable);
        }
    }
    return environment;
}

} // namespace lumora::qt
