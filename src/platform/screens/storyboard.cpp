// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/screens/storyboard.h"

#include <string>

namespace lumora::platform {

std::shared_ptr<ViewController> prepareSegue(Storyboard& storyboard, ViewController& source,
                                             std::string_view identifier,
                                             std::optional<IndexPath> sender)
{
    if (!source.shouldPerformSegue(identifier)) {
        return nullptr;
    }
    auto destination = storyboard.instantiateDestination(identifier);
    source.prepareForSegue({std::string{identifier}, *destination, sender});
    return destination;
}

} // namespace lumora::platform
