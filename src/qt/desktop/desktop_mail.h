// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/mail_composer.h"
#include "qt/desktop/desktop.h"
#include "qt/desktop/portal.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

namespace lumora::qt {

/// A message in plain text: neither the portal nor xdg-email takes another.
struct MailMessage {
    QStringList recipients;
    QString subject;
    QString body;
};

/// Mail through the desktop's portal, which knows the outcome, or else through
/// the default mail program, which takes the message and does not say what
/// becomes of it: that counts as saved.
class DesktopMail final : public QObject, public platform::MailService {
public:
    using Finished = std::function<void(platform::MailComposeResult)>;

    explicit DesktopMail(Desktop desktop);

    bool canSendMail() const override;
    std::shared_ptr<platform::MailComposer> makeMailComposer() override;

    /// `finished` is called once, from the event loop, while this lives.
    void open(const MailMessage& message, Finished finished);

private:
    void openInPortal(uint version, const MailMessage& message, Finished finished);
    void openInMailProgram(const MailMessage& message, Finished finished);

    Desktop desktop_;
    portal::Version portal_;
};

} // namespace lumora::qt
