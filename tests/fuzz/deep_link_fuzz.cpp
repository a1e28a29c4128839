// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/deep_link.h"
#include "fuzz/fuzz.h"
#include "text/text.h"

#include <algorithm>

using namespace lumora;

/// Any text as a link from outside: what it names is a text without control
/// characters.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const fuzz::TimeLimit limit;
    const auto text = fuzz::textOf(data, size);
    const auto link = app::DeepLink::parse(text);
    if (!link) {
        return 0;
    }
    const auto& name = link->infinitive;
    fuzz::require(app::isDeepLink(text), "what was understood is a link");
    fuzz::require(!name.empty() && text::wellFormed(name) == name, "a name is a text");
    fuzz::require(std::none_of(name.begin(), name.end(),
                               [](char c) { return static_cast<unsigned char>(c) < ' '; }),
                  "a name has no control characters");
    return 0;
}
