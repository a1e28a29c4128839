// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <string>
#include <string_view>
#include <vector>

namespace lumora::qt {

inline QString toQString(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

inline std::string toUtf8(const QString& text)
{
    return text.toStdString();
}

inline QStringList toQStringList(const std::vector<std::string>& texts)
{
    QStringList list;
    list.reserve(static_cast<qsizetype>(texts.size()));
    for (const auto& text : texts) {
        list.append(toQString(text));
    }
    return list;
}

} // namespace lumora::qt
