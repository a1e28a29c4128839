// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/machine/file_chooser.h"
#include "platform/machine/review_prompter.h"
#include "platform/machine/url_opener.h"
#include "platform/screens/mail_composer.h"
#include "platform/screens/share_sheet.h"

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// Sharing, mail, links and files, of which nothing leaves the test.
namespace lumora::support {

class FakeUrlOpener final : public platform::UrlOpener {
public:
    bool canOpen(std::string_view /*url*/) const override { return opens; }
    bool open(std::string_view url) override
    {
        opened.emplace_back(url);
        return opens;
    }

    bool opens = true;
    std::vector<std::string> opened;
};

class FakeReviewPrompter final : public platform::ReviewPrompter {
public:
    void requestReview() override { ++requests; }

    int requests = 0;
};

class FakeShareSheet final : public platform::ShareSheet {
public:
    struct Shared {
        platform::ViewController* on = nullptr;
        platform::ShareItems items;
        std::string anchor;
    };

    void present(platform::ViewController& on, platform::ShareItems items,
                 std::string_view anchor) override
    {
        shared.push_back({&on, std::move(items), std::string{anchor}});
    }

    std::vector<Shared> shared;
};

/// A message as it was filled in; the test says how it ends.
class FakeMailComposer : public platform::MailComposer {
public:
    void setMailComposeDelegate(platform::MailComposerDelegate* newDelegate) override
    {
        delegate = newDelegate;
    }
    void setToRecipients(std::vector<std::string> addresses) override
    {
        recipients = std::move(addresses);
    }
    void setSubject(std::string newSubject) override { subject = std::move(newSubject); }
    void setMessageBody(std::string newBody, bool html) override
    {
        body = std::move(newBody);
        isHtml = html;
    }
    void finish(platform::MailComposeResult result)
    {
        if (delegate != nullptr) {
            delegate->mailComposeDidFinish(*this, result);
        }
    }

    platform::MailComposerDelegate* delegate = nullptr;
    std::vector<std::string> recipients;
    std::string subject;
    std::string body;
    bool isHtml = false;
};

class FakeMailService final : public platform::MailService {
public:
    bool canSendMail() const override { return canSend; }
    std::shared_ptr<platform::MailComposer> makeMailComposer() override
    {
        composers.push_back(std::make_shared<FakeMailComposer>());
        return composers.back();
    }

    bool canSend = true;
    std::vector<std::shared_ptr<FakeMailComposer>> composers;
};

/// Keeps the question; the test answers it.
class FakeFileChooser final : public platform::FileChooser {
public:
    void choose(const platform::FileQuestion& asked,
                std::function<void(const std::filesystem::path&)> then) override
    {
        question = asked;
        chosen = std::move(then);
    }

    std::optional<platform::FileQuestion> question;
    std::function<void(const std::filesystem::path&)> chosen;
};

} // namespace lumora::support
