// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "web/web_mail.h"

#include <chrono>
#include <string>
#include <utility>
#include <vector>

namespace lumora::web {

namespace {

class WebMailComposer final : public platform::MailComposer,
                              public std::enable_shared_from_this<WebMailComposer> {
public:
    WebMailComposer(Outbox& outbox, platform::Clock& clock) : outbox_{outbox}, clock_{clock} {}

    void setMailComposeDelegate(platform::MailComposerDelegate* delegate) override
    {
        delegate_ = delegate;
    }
    void setToRecipients(std::vector<std::string> addresses) override
    {
        message_["to"] = std::move(addresses);
    }
    void setSubject(std::string subject) override { message_["subject"] = std::move(subject); }
    void setMessageBody(std::string body, bool isHtml) override
    {
        message_["body"] = std::move(body);
        message_["html"] = isHtml;
    }

    void viewDidAppear() override
    {
        message_["do"] = "mail";
        outbox_.add(message_);
        clock_.runLater(std::chrono::milliseconds{0}, [self = shared_from_this()] {
            if (self->delegate_ != nullptr) {
                self->delegate_->mailComposeDidFinish(*self, platform::MailComposeResult::Saved);
            }
        });
    }

private:
    Outbox& outbox_;
    platform::Clock& clock_;
    platform::MailComposerDelegate* delegate_ = nullptr;
    Json message_ = Json::object();
};

} // namespace

std::shared_ptr<platform::MailComposer> WebMail::makeMailComposer()
{
    return std::make_shared<WebMailComposer>(outbox_, clock_);
}

} // namespace lumora::web
