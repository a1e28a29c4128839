// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "export/support_email_sender.h"

#include "build_settings.h"
#include "platform/machine/bundle.h"
#include "platform/machine/device.h"
#include "platform/machine/url_opener.h"
#include "platform/screens/presenter.h"

#include <cstdio>
#include <cstdlib>

namespace lumora::exporting {

using platform::localizedString;
using platform::MailComposeResult;

SupportEmailSender::SupportEmailSender(const platform::Services& services) : services_{services} {}

SupportEmailSender::~SupportEmailSender()
{
    if (const auto composer = composer_.lock()) {
        composer->setMailComposeDelegate(nullptr);
    }
}

void SupportEmailSender::start()
{
    if (services_.mail.canSendMail()) {
        presentComposer();
        return;
    }
    auto& opener = services_.urlOpener;
    if (!opener.canOpen(build::kContactUrl) || !opener.open(build::kContactUrl)) {
        showError();
    }
}

void SupportEmailSender::presentComposer()
{
    auto composer = services_.mail.makeMailComposer();
    composer_ = composer;
    composer->setMailComposeDelegate(this);
    composer->setToRecipients({localizedString(services_.bundle, "support.email")});
    composer->setSubject(localizedString(services_.bundle, "app.title"));
    composer->setMessageBody(messageBody(), true);
    services_.presenter.present(presentingScreen(), std::move(composer));
}

std::string SupportEmailSender::messageBody() const
{
    const auto& device = services_.device;
    const auto version = services_.bundle.infoValue("CFBundleShortVersionString");
    const auto build = services_.bundle.infoValue("CFBundleVersion");

    // Three empty lines for the user's own words, then a rule.
    std::string body = "<br /><br /><br /><hr />App: ";
    body += localizedString(services_.bundle, "app.title");
    body += "<br />Device: " + device.modelName();
    body += " (" + device.machineIdentifier().value_or("Unknown Platform") + ")<br />iOS: ";
    body += device.systemVersion();
    body += "<br />App: ";
    if (version && build) {
        body += *version + " (" + *build + ")";
    }
    return body;
}

void SupportEmailSender::mailComposeDidFinish(platform::MailComposer& composer,
                                              MailComposeResult result)
{
    if (result == MailComposeResult::Failed) {
        showError();
    }
    services_.presenter.dismiss(composer, [weak = weak_from_this(), result] {
        const auto self = weak.lock();
        if (!self) {
            return;
        }
        if (result == MailComposeResult::Sent) {
            self->showAlert("support.emailsuccess.title", "support.emailsuccess.subject");
        } else if (result == MailComposeResult::Failed) {
            self->showError();
        }
    });
}

platform::ViewController& SupportEmailSender::presentingScreen() const
{
    if (sender == nullptr) {
        std::fputs("lumora: a support e-mail without a screen\n", stderr);
        std::abort();
    }
    return *sender;
}

void SupportEmailSender::showAlert(std::string_view titleKey, std::string_view messageKey) const
{
    services_.presenter.presentAlert(
        presentingScreen(), platform::notice(localizedString(services_.bundle, titleKey),
                                             localizedString(services_.bundle, messageKey),
                                             localizedString(services_.bundle, "common.ok")));
}

void SupportEmailSender::showError() const
{
    showAlert("export.email.error", "export.email.message");
}

} // namespace lumora::exporting
