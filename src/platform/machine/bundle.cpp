// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/machine/bundle.h"

namespace lumora::platform {

std::string localizedString(const Bundle& bundle, std::string_view key)
{
    return bundle.textForKey(key).value_or(std::string(key));
}

} // namespace lumora::platform
