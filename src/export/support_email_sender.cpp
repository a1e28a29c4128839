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

SupportEmailSender::SupportEmailSender(const platform::Bundle& bundle,
                                       const platform::Device& device, platform::MailService& mail,
                                       platform::UrlOpener& urlOpener,
                                       platform::Presenter& presenter)
    : bundle_{bundle}, device_{device}, mail_{mail}, urlOpener_{urlOpener}, presenter_{presenter}
{}

SupportEmailSender::~SupportEmailSender()
{
    if (const auto composer = composer_.lock()) {
        composer->setMailComposeDelegate(nullptr);
    }
}

void SupportEmailSender::start()
{
    if (mail_.canSendMail()) {
        presentComposer();
        return;
    }
    if (!urlOpener_.canOpen(build::kContactUrl) || !urlOpener_.open(build::kContactUrl)) {
        showError();
    }
}

void SupportEmailSender::presentComposer()
{
    auto composer = mail_.makeMailComposer();
    composer_ = composer;
    composer->setMailComposeDelegate(this);
    composer->setToRecipients({localizedString(bundle_, "support.email")});
    composer->setSubject(localizedString(bundle_, "app.title"));
    composer->setMessageBody(messageBody(), true);
    presenter_.present(presentingScreen(), std::move(composer));
}

std::string SupportEmailSender::messageBody() const
{
    const auto version = bundle_.infoValue("CFBundleShortVersionString");
    const auto build = bundle_.infoValue("CFBundleVersion");

    // Three empty lines for the user's own words, then a rule.
    std::string body = "<br /><br /><br /><hr />App: ";
    body += localizedString(bundle_, "app.title");
    body += "<br />Device: " + device_.modelName();
    body += " (" + device_.machineIdentifier().value_or("Unknown Platform") + ")<br />iOS: ";
    body += device_.systemVersion();
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
    presenter_.dismiss(composer, [weak = weak_from_this(), result] {
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
    presenter_.presentAlert(presentingScreen(),
                            platform::notice(localizedString(bundle_, titleKey),
                                             localizedString(bundle_, messageKey),
                                             localizedString(bundle_, "common.ok")));
}

void SupportEmailSender::showError() const
{
    showAlert("export.email.error", "export.email.message");
}

} // namespace lumora::exporting
