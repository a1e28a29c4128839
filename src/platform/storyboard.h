// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/view_controller.h"

#include <memory>
#include <string_view>

namespace lumora::platform {

/// Makes screens by the names they have in the interface description. An
/// unknown name is a mistake in the program and stops it.
class Storyboard {
public:
    virtual ~Storyboard() = default;
    virtual std::shared_ptr<ViewController>
    instantiateViewController(std::string_view identifier) = 0;
    /// The screen that a step from one screen leads to.
    virtual std::shared_ptr<ViewController>
    instantiateDestination(std::string_view segueIdentifier) = 0;
};

} // namespace lumora::platform
