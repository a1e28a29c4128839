// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/storage/property_list.h"

namespace lumora::platform {

std::optional<PropertyListDictionary>
readPropertyListDictionary(std::string_view /*bytes*/, std::span<const std::string_view> /*keys*/)
{
    return std::nullopt;
}

} // namespace lumora::platform
