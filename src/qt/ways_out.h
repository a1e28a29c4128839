// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/share_sheet.h"

namespace lumora::qt {

class NoShareSheet final : public platform::ShareSheet {
public:
    void present(platform::ViewController& /*on*/, platform::ShareItems /*items*/,
                 std::string_view /*anchor*/) override
    {}
};

} // namespace lumora::qt
