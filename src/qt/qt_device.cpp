// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/qt_device.h"

#include "platform/split_view_controller.h"
#include "qt/text_conversion.h"

#include <QLocale>
#include <QSysInfo>

#include <utility>

namespace lumora::qt {

QtDevice::QtDevice(std::vector<std::string> launchArguments)
    : launchArguments_{std::move(launchArguments)}
{}

std::vector<std::string> QtDevice::preferredLanguages() const
{
    std::vector<std::string> languages;
    for (const auto& language : QLocale::system().uiLanguages()) {
        // The "C" locale is no language.
        if (language != QLatin1String("C")) {
            languages.push_back(toUtf8(language));
        }
    }
    if (languages.empty()) {
        languages.emplace_back("en");
    }
    return languages;
}

std::string QtDevice::modelName() const
{
    return toUtf8(QSysInfo::prettyProductName());
}

std::optional<std::string> QtDevice::machineIdentifier() const
{
    const auto architecture = toUtf8(QSysInfo::currentCpuArchitecture());
    return architecture.empty() ? std::nullopt : std::optional{architecture};
}

std::string QtDevice::systemVersion() const
{
    return toUtf8(QSysInfo::productVersion());
}

std::string QtDevice::regionCode() const
{
    return toUtf8(QLocale::territoryToCode(QLocale::system().territory()));
}

bool QtDevice::isTablet() const
{
    return windowWidth_ >= platform::kTwoPaneWidth;
}

} // namespace lumora::qt
