// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/view_controller.h"

#include <memory>
#include <string>
#include <vector>

namespace lumora::platform {

enum class MailComposeResult { Cancelled, Saved, Sent, Failed };

class MailComposer;

class MailComposerDelegate {
public:
    virtual ~MailComposerDelegate() = default;
    /// Once for each composer that was presented, never from within the call
    /// that presented it.
    virtual void mailComposeDidFinish(MailComposer& composer, MailComposeResult result) = 0;
};

/// A message that the user finishes and sends in a mail program. It is filled
/// first and then presented, which opens it; its outcome goes to the delegate.
/// An open one keeps itself until then.
class MailComposer : public ViewController {
public:
    /// Not owned; must outlive the composer or be taken away. May be null.
    virtual void setMailComposeDelegate(MailComposerDelegate* delegate) = 0;
    virtual void setToRecipients(std::vector<std::string> addresses) = 0;
    virtual void setSubject(std::string subject) = 0;
    virtual void setMessageBody(std::string body, bool isHtml) = 0;
};

/// The machine's way to send mail.
class MailService {
public:
    virtual ~MailService() = default;
    virtual bool canSendMail() const = 0;
    /// Never null.
    virtual std::shared_ptr<MailComposer> makeMailComposer() = 0;
};

} // namespace lumora::platform
