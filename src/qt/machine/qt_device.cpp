// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/machine/qt_device.h"

#include "platform/screens/split_view_controller.h"
#include "qt/base/text_conversion.h"
#include "qt/machine/machine_model.h"
#include "text/text.h"

#include <QLocale>
#include <QSysInfo>

#include <utility>

#include <sys/utsname.h>

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
    return machineModel().value_or("Unknown Platform");
}

std::optional<std::string> QtDevice::machineIdentifier() const
{
    struct utsname names = {};
    if (::uname(&names) != 0) {
        return std::nullopt;
    }
    return text::wellFormed(static_cast<const char*>(names.machine));
}

std::string QtDevice::systemVersion() const
{
    return toUtf8(QSysInfo::prettyProductName());
}

std::string QtDevice::regionCode() const
{
    const auto code = toUtf8(QLocale::territoryToCode(QLocale::system().territory()));
    // The "C" locale has no country.
    return code.size() == 2 ? code : std::string{};
}

bool QtDevice::isTablet() const
{
    return windowWidth_ >= platform::kTwoPaneWidth;
}

} // namespace lumora::qt
