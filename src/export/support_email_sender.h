// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/mail_composer.h"

#include <memory>
#include <string>
#include <string_view>

namespace lumora::platform {
class Bundle;
class Device;
class Presenter;
class UrlOpener;
} // namespace lumora::platform

namespace lumora::exporting {

/// One e-mail to the support: what the program and the device are stands below
/// the space for the user's words. Where no mail can be sent the maker's
/// contact page opens instead.
///
/// Lives in a shared pointer that the starting screen keeps until its next
/// e-mail. GUI thread only.
class SupportEmailSender final : public platform::MailComposerDelegate,
                                 public std::enable_shared_from_this<SupportEmailSender> {
public:
    /// What it takes must outlive it.
    SupportEmailSender(const platform::Bundle& bundle, const platform::Device& device,
                       platform::MailService& mail, platform::UrlOpener& urlOpener,
                       platform::Presenter& presenter);
    SupportEmailSender(const SupportEmailSender&) = delete;
    SupportEmailSender& operator=(const SupportEmailSender&) = delete;
    ~SupportEmailSender() override;

    /// The screen that started it, on which the composer and the alerts show.
    /// Not owned; without one, presenting is a mistake and stops the program.
    platform::ViewController* sender = nullptr;

    void start();
    void mailComposeDidFinish(platform::MailComposer& composer,
                              platform::MailComposeResult result) override;

private:
    std::string messageBody() const;
    void presentComposer();
    platform::ViewController& presentingScreen() const;
    void showAlert(std::string_view titleKey, std::string_view messageKey) const;
    void showError() const;

    const platform::Bundle& bundle_;
    const platform::Device& device_;
    platform::MailService& mail_;
    platform::UrlOpener& urlOpener_;
    platform::Presenter& presenter_;
    /// When this object ends first, the composer is told not to call it.
    std::weak_ptr<platform::MailComposer> composer_;
};

} // namespace lumora::exporting
