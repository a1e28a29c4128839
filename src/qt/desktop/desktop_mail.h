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

/// Mail through the desktop's portal or else through xdg-email. Either hands
/// the message to the default mail program, which does not say what becomes of
/// it: that counts as saved. Needs a program for mailto addresses; in a sandbox,
/// which sees none, the portal.
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
