// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/mail_composer.h"
#include "platform/review_prompter.h"
#include "platform/share_sheet.h"
#include "platform/url_opener.h"

/// The ways out of the program while the desktop offers none.
namespace lumora::qt {

class NoUrlOpener final : public platform::UrlOpener {
public:
    bool canOpen(std::string_view /*url*/) const override { return false; }
    bool open(std::string_view /*url*/) override { return false; }
};

class NoReviewPrompter final : public platform::ReviewPrompter {
public:
    void requestReview() override {}
};

class NoShareSheet final : public platform::ShareSheet {
public:
    void present(platform::ViewController& /*on*/, platform::ShareItems /*items*/,
                 std::string_view /*anchor*/) override
    {}
};

/// A composer that nothing opens.
class NoMailComposer final : public platform::MailComposer {
public:
    void setMailComposeDelegate(platform::MailComposerDelegate* /*delegate*/) override {}
    void setToRecipients(std::vector<std::string> /*addresses*/) override {}
    void setSubject(std::string /*subject*/) override {}
    void setMessageBody(std::string /*body*/, bool /*isHtml*/) override {}
};

class NoMailService final : public platform::MailService {
public:
    bool canSendMail() const override { return false; }
    std::shared_ptr<platform::MailComposer> makeMailComposer() override
    {
        return std::make_shared<NoMailComposer>();
    }
};

} // namespace lumora::qt
