// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/machine/review_prompter.h"
#include "platform/machine/url_opener.h"

namespace lumora::qt {

/// Shows the program's page in the software centre, where it is reviewed.
/// Where there is none, nothing happens.
class DesktopReviewPrompter final : public platform::ReviewPrompter {
public:
    /// The opener must outlive this.
    explicit DesktopReviewPrompter(platform::UrlOpener& opener) : opener_{opener} {}

    void requestReview() override
    {
        constexpr std::string_view kPage = "appstream://com.brindle.lumora";
        if (opener_.canOpen(kPage)) {
            opener_.open(kPage);
        }
    }

private:
    platform::UrlOpener& opener_;
};

} // namespace lumora::qt
