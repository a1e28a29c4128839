// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/machine/qt_bundle.h"

#include "qt/base/text_conversion.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <system_error>
#include <utility>

namespace lumora::qt {

QtBundle::QtBundle(std::filesystem::path shareFolder) : shareFolder_{std::move(shareFolder)}
{
    QFile file{toQString((shareFolder_ / "bundle.json").native())};
    if (!file.open(QIODevice::ReadOnly)) {
        return;
    }
    const auto values = QJsonDocument::fromJson(file.readAll()).object();
    for (auto value = values.begin(); value != values.end(); ++value) {
        if (value->isString()) {
            info_.emplace(toUtf8(value.key()), toUtf8(value->toString()));
        }
    }
}

std::optional<std::filesystem::path> QtBundle::pathForResource(std::string_view name,
                                                               std::string_view extension) const
{
    std::string fileName{name};
    if (!extension.empty()) {
        fileName.append(".").append(extension);
    }
    auto path = shareFolder_ / fileName;
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) {
        return std::nullopt;
    }
    return path;
}

std::optional<std::string> QtBundle::infoValue(std::string_view key) const
{
    const auto found = info_.find(key);
    return found == info_.end() ? std::nullopt : std::optional{found->second};
}

std::optional<std::string> QtBundle::textForKey(std::string_view key) const
{
    const std::string id{key};
    const auto text = toUtf8(qtTrId(id.c_str()));
    // An id without a translation comes back as it is.
    return text == id ? std::nullopt : std::optional{text};
}

} // namespace lumora::qt
