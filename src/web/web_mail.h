// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/machine/clock.h"
#include "platform/screens/mail_composer.h"
#include "web/outbox.h"

#include <memory>

namespace lumora::web {

/// Mail through a mailto address: the machine's mail program gets the message and
/// does not say what becomes of it, which counts as saved.
class WebMail final : public platform::MailService {
public:
    WebMail(Outbox& outbox, platform::Clock& clock) : outbox_{outbox}, clock_{clock} {}

    bool canSendMail() const override { return true; }
    std::shared_ptr<platform::MailComposer> makeMailComposer() override;

private:
    Outbox& outbox_;
    platform::Clock& clock_;
};

} // namespace lumora::web
