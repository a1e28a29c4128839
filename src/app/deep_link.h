// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lumora::app {

/// A link from outside that leads to a verb, "lumora://verb/%C3%AAtre".
struct DeepLink {
    /// Composed UTF-8, never empty; whether there is such a verb is not known.
    std::string infinitive;

    /// Scheme and host in any case; what follows "?" or "#" is not looked at.
    /// None unless the rest is one percent-encoded name in well-formed UTF-8
    /// without control characters.
    static std::optional<DeepLink> parse(std::string_view link);
};

/// Whether it is meant for this program, well-formed or not.
bool isDeepLink(std::string_view text);

} // namespace lumora::app
