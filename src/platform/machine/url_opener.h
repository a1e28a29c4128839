// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string_view>

namespace lumora::platform {

/// Opens addresses in the programs that are installed for them.
class UrlOpener {
public:
    virtual ~UrlOpener() = default;
    /// Whether some program takes the address. Addresses are absolute, with
    /// one of the schemes https, mailto and appstream; others are never opened.
    virtual bool canOpen(std::string_view url) const = 0;
    /// Opens the address outside this program. False when nothing took it.
    virtual bool open(std::string_view url) = 0;
};

} // namespace lumora::platform
