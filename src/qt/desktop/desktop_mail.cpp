// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/desktop/desktop_mail.h"

#include "qt/base/library_files.h"
#include "qt/base/plain_text.h"
#include "qt/base/text_conversion.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTimer>

#include <chrono>
#include <utility>

#include <unistd.h>

namespace lumora::qt {

using platform::MailComposeResult;

namespace {

const QString kEmailPortal = QStringLiteral("org.freedesktop.portal.Email");
const QString kMailProgram = QStringLiteral("xdg-email");
/// From this version on the portal takes several addresses.
constexpr uint kManyAddresses = 3;
/// A mail program that still runs after this time has taken the message: some
/// run until their window is closed.
constexpr std::chrono::seconds kHandOverTime{3};

MailComposeResult resultOf(portal::Answer answer)
{
    switch (answer) {
    case portal::Answer::Done:
        // A mail program was started; nothing has been sent yet.
        return MailComposeResult::Saved;
    case portal::Answer::Cancelled:
        return MailComposeResult::Cancelled;
    case portal::Answer::Failed:
        break;
    }
    return MailComposeResult::Failed;
}

class DesktopMailComposer final : public platform::MailComposer,
                                  public std::enable_shared_from_this<DesktopMailComposer> {
public:
    explicit DesktopMailComposer(DesktopMail& mail) : mail_{mail} {}

    void setMailComposeDelegate(platform::MailComposerDelegate* delegate) override
    {
        delegate_ = delegate;
    }
    void setToRecipients(std::vector<std::string> addresses) override
    {
        message_.recipients = toQStringList(addresses);
    }
    void setSubject(std::string subject) override { message_.subject = toQString(subject); }
    void setMessageBody(std::string body, bool isHtml) override
    {
        message_.body = isHtml ? plainTextOf(toQString(body)) : toQString(body);
    }

    void viewDidAppear() override
    {
        if (std::exchange(opened_, true)) {
            return;
        }
        mail_.open(message_, [self = shared_from_this()](MailComposeResult result) {
            if (self->delegate_ != nullptr) {
                self->delegate_->mailComposeDidFinish(*self, result);
            }
        });
    }

private:
    DesktopMail& mail_;
    platform::MailComposerDelegate* delegate_ = nullptr;
    MailMessage message_;
    bool opened_ = false;
};

/// An address that cannot be taken for an option.
bool isAddress(const QString& text)
{
    return text.contains(QLatin1Char('@')) && !text.startsWith(QLatin1Char('-'));
}

} // namespace

DesktopMail::DesktopMail(Desktop desktop)
    : desktop_{std::move(desktop)}, portal_{desktop_.bus, kEmailPortal}
{}

bool DesktopMail::canSendMail() const
{
    if (desktop_.sandboxed) {
        return portal_.exists();
    }
    // The portal is there without any mail program too.
    return desktop_.hasUrlHandler("mailto") &&
           (portal_.exists() || !QStandardPaths::findExecutable(kMailProgram).isEmpty());
}

std::shared_ptr<platform::MailComposer> DesktopMail::makeMailComposer()
{
    return std::make_shared<DesktopMailComposer>(*this);
}

void DesktopMail::open(const MailMessage& message, Finished finished)
{
    if (const auto version = portal_.get()) {
        openInPortal(*version, message, std::move(finished));
    } else {
        openInMailProgram(message, std::move(finished));
    }
}

void DesktopMail::openInPortal(uint version, const MailMessage& message, Finished finished)
{
    QVariantMap options{{QStringLiteral("subject"), message.subject},
                        {QStringLiteral("body"), message.body}};
    if (version >= kManyAddresses) {
        options.insert(QStringLiteral("addresses"), message.recipients);
    } else if (!message.recipients.isEmpty()) {
        options.insert(QStringLiteral("address"), message.recipients.first());
    }
    const QString noParentWindow;
    portal::Request::send(
        desktop_.bus, kEmailPortal, QStringLiteral("ComposeEmail"), {noParentWindow}, options,
        [finished = std::move(finished)](portal::Answer answer, const QVariantMap& /*results*/) {
            finished(resultOf(answer));
        },
        this);
}

void DesktopMail::openInMailProgram(const MailMessage& message, Finished finished)
{
    QStringList arguments{QStringLiteral("--utf8"), QStringLiteral("--subject"), message.subject,
                          QStringLiteral("--body"), message.body};
    for (const auto& recipient : message.recipients) {
        if (isAddress(recipient)) {
            arguments.append(recipient);
        }
    }

    auto* const program = new QProcess{this};
    program->setProcessEnvironment(environmentForOthers());
    program->setStandardInputFile(QProcess::nullDevice());
    program->setStandardOutputFile(QProcess::nullDevice());
    program->setStandardErrorFile(QProcess::nullDevice());
    // A mail program outlives this one, also at the end of a terminal.
    program->setChildProcessModifier([] { ::setsid(); });

    const auto finish =
        [finished = std::make_shared<Finished>(std::move(finished))](MailComposeResult result) {
            if (const auto once = std::exchange(*finished, {})) {
                once(result);
            }
        };
    connect(program, &QProcess::finished, this,
            [finish, program](int exitCode, QProcess::ExitStatus status) {
                program->deleteLater();
                finish(status == QProcess::NormalExit && exitCode == 0 ? MailComposeResult::Saved
                                                                       : MailComposeResult::Failed);
            });
    connect(
        program, &QProcess::errorOccurred, this,
        [finish, program](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart) {
                program->deleteLater();
                finish(MailComposeResult::Failed);
            }
        },
        Qt::QueuedConnection);
    QTimer::singleShot(kHandOverTime, program, [finish] { finish(MailComposeResult::Saved); });
    program->start(kMailProgram, arguments);
}

} // namespace lumora::qt
