// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace lumora::platform {

/// Asks the user to review the program where it came from.
class ReviewPrompter {
public:
    virtual ~ReviewPrompter() = default;
    virtual void requestReview() = 0;
};

} // namespace lumora::platform
