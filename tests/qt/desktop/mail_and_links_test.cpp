// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/base/library_files.h"
#include "qt/base/standard_folders.h"
#include "qt/base/text_conversion.h"
#include "qt/desktop/desktop_documents.h"
#include "qt/desktop/desktop_mail.h"
#include "qt/desktop/desktop_review_prompter.h"
#include "qt/desktop/desktop_url_opener.h"
#include "qt/desktop/url_handlers.h"

#include "qt/desktop/stand_in_portal.h"
#include "support/environment_variable.h"

#include <QDBusUnixFileDescriptor>
#include <QFile>
#include <QtTest/QTest>

#include <gtest/gtest.h>

namespace lumora::qt {
namespace {

using platform::MailComposeResult;
using support::MessageBus;
using support::StandInPortal;

const QString kEmail = QStringLiteral("org.freedesktop.portal.Email");
const QString kOpenUri = QStringLiteral("org.freedesktop.portal.OpenURI");

bool handlesAll(const std::string& /*scheme*/)
{
    return true;
}

struct Outcome final : platform::MailComposerDelegate {
    void mailComposeDidFinish(platform::MailComposer& /*composer*/,
                              MailComposeResult newResult) override
    {
        EXPECT_FALSE(result) << "told once";
        result = newResult;
    }

    std::optional<MailComposeResult> result;
};

/// Composes a message and presents it; the composer is nobody's from then on.
void compose(DesktopMail& mail, Outcome& outcome)
{
    const auto composer = mail.makeMailComposer();
    composer->setMailComposeDelegate(&outcome);
    composer->setToRecipients({"help@example.org"});
    composer->setSubject("L'été");
    composer->setMessageBody("<br /><br /><br /><hr />App: A &amp; B<br />Device: \"x\"", true);
    composer->viewDidAppear();
    EXPECT_FALSE(outcome.result) << "not from within the call";
}

const QString kBody = QStringLiteral("\n\n\n--------------------\nApp: A & B\nDevice: \"x\"");

bool until(const std::function<bool()>& condition)
{
    constexpr int kPatience = 5000;
    return QTest::qWaitFor(condition, kPatience);
}

bool ends(const Outcome& outcome)
{
    return until([&] { return outcome.result.has_value(); });
}

/// Programs of the desktop that record how they were called.
struct Programs {
    explicit Programs(const char* name, int status)
    {
        support::writeContent(folder / name,
                              "#!/bin/sh\nprintf '%s|' \"$@\" $MESA_SHADER_CACHE_DIR >> " +
                                  (folder / "called").string() + "\nexit " +
                                  std::to_string(status) + "\n");
        std::filesystem::permissions(folder / name, std::filesystem::perms::owner_all);
    }

    std::string called() const { return support::contentOf(folder / "called"); }

    support::TemporaryFolder folder;
    support::EnvironmentVariable path{"PATH", folder.path()};
};

TEST(DesktopMail, ThePortalTakesTheMessageAndNeverSaysThatItWasSent)
{
    struct Case {
        uint version;
        uint response;
        bool choosesPaths;
        MailComposeResult result;
    };
    const Case cases[] = {
        {3, 0, false, MailComposeResult::Saved},    {3, 1, false, MailComposeResult::Cancelled},
        {3, 2, false, MailComposeResult::Failed},   {2, 0, false, MailComposeResult::Saved},
        {1, 1, true, MailComposeResult::Cancelled},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.version * 10 + c.response);
        MessageBus bus;
        const StandInPortal portal{bus,
                                   {.versions = {{kEmail, c.version}},
                                    .response = c.response,
                                    .choosesPaths = c.choosesPaths}};
        DesktopMail mail{{bus.connect(), handlesAll}};
        EXPECT_TRUE(mail.canSendMail());
        Outcome outcome;
        compose(mail, outcome);

        ASSERT_TRUE(ends(outcome));
        EXPECT_EQ(outcome.result, c.result);
        ASSERT_EQ(portal.requests().size(), 1U);
        const auto options = portal.requests()[0].options;
        const auto to = c.version < 3 ? options.value("address").toStringList()
                                      : options.value("addresses").toStringList();
        EXPECT_EQ(to, QStringList{QStringLiteral("help@example.org")});
        EXPECT_EQ(options.value("subject").toString(), QStringLiteral("L'été"));
        EXPECT_EQ(options.value("body").toString(), kBody);
    }
}

TEST(DesktopMail, APortalThatGoesAwayHasFailed)
{
    MessageBus bus;
    auto portal = std::make_unique<StandInPortal>(
        bus, StandInPortal::Behaviour{.versions = {{kEmail, 3}}, .response = {}});
    DesktopMail mail{{bus.connect(), {}}};
    Outcome outcome;
    compose(mail, outcome);
    ASSERT_TRUE(until([&] { return !portal->requests().empty(); }));

    portal.reset();

    ASSERT_TRUE(ends(outcome));
    EXPECT_EQ(outcome.result, MailComposeResult::Failed);
}

TEST(DesktopMail, WithoutAPortalTheMailProgramSavesTheMessage)
{
    for (const int status : {0, 4}) {
        SCOPED_TRACE(status);
        MessageBus bus;
        // A portal without mail.
        const StandInPortal portal{bus, {.versions = {{kOpenUri, 4}}}};
        const Programs programs{"xdg-email", status};
        DesktopMail mail{{bus.connect(), hasUrlHandler}};
        EXPECT_TRUE(mail.canSendMail());
        Outcome outcome;
        compose(mail, outcome);

        ASSERT_TRUE(ends(outcome));
        EXPECT_EQ(outcome.result,
                  status == 0 ? MailComposeResult::Saved : MailComposeResult::Failed);
        EXPECT_EQ(programs.called(),
                  "--utf8|--subject|L'été|--body|" + toUtf8(kBody) + "|help@example.org|");
    }
}

TEST(DesktopMail, NeedsAProgramForMailtoAddressesWhichASandboxHidesBehindThePortal)
{
    {
        MessageBus bus;
        const StandInPortal portal{bus, {.versions = {{kEmail, 3}, {kOpenUri, 4}}}};
        Desktop desktop{bus.connect()};
        EXPECT_FALSE(DesktopMail(desktop).canSendMail());
        EXPECT_FALSE(DesktopUrlOpener(desktop).canOpen("https://example.org"));
        EXPECT_FALSE(DesktopUrlOpener(desktop).open("https://example.org"));
        desktop.sandboxed = true;
        EXPECT_TRUE(DesktopMail(desktop).canSendMail());
        EXPECT_TRUE(DesktopUrlOpener(desktop).canOpen("https://example.org"));
        EXPECT_FALSE(DesktopUrlOpener(desktop).canOpen("appstream://org.example.a"));
    }
    const Programs programs{"xdg-email", 0};
    EXPECT_TRUE(DesktopMail({QDBusConnection{QString{}}, handlesAll}).canSendMail());
    EXPECT_FALSE(DesktopMail(Desktop{}).canSendMail()) << "xdg-email alone sends nothing";
    const Programs others{"xdg-open", 0};
    EXPECT_FALSE(DesktopMail({QDBusConnection{QString{}}, handlesAll}).canSendMail());
}

TEST(UrlHandlers, AreThePrograms)
{
    EXPECT_TRUE(hasUrlHandler("mailto"));
    EXPECT_FALSE(hasUrlHandler("appstream")) << "listed and gone";
    EXPECT_FALSE(hasUrlHandler("https"));
}

TEST(DesktopUrlOpener, TakesFewKindsOfAddresses)
{
    // What is settled for this program alone no browser hears of.
    keepLibraryFilesIn(StandardFolders::fromEnvironment().state);
    ASSERT_TRUE(qEnvironmentVariableIsSet("MESA_SHADER_CACHE_DIR"));
    const Programs programs{"xdg-open", 0};
    DesktopUrlOpener opener{{QDBusConnection{QString{}}, handlesAll}};
    for (const char* url :
         {"https://example.org/a?b=c", "mailto:help@example.org", "appstream://org.example.a"}) {
        EXPECT_TRUE(opener.canOpen(url)) << url;
    }
    for (const char* url :
         {"http://example.org/", "file:///etc/passwd", "javascript:alert(1)", "https://",
          "https:/x", "mailto:", "example.org", "--help", "", "https://a b.org"}) {
        EXPECT_FALSE(opener.canOpen(url)) << url;
        EXPECT_FALSE(opener.open(url)) << url;
    }

    EXPECT_TRUE(opener.open("https://example.org/été?b='$(id)'"));
    EXPECT_TRUE(until([&] {
        return programs.called() == "https://example.org/%C3%A9t%C3%A9?b='$(id)'|";
    })) << programs.called();
}

TEST(DesktopUrlOpener, AsksThePortalAndThenThePrograms)
{
    for (const uint response : {0U, 2U}) {
        SCOPED_TRACE(response);
        MessageBus bus;
        const StandInPortal portal{bus, {.versions = {{kOpenUri, 4}}, .response = response}};
        const Programs programs{"xdg-open", 0};
        DesktopUrlOpener opener{{bus.connect(), handlesAll}};

        EXPECT_TRUE(opener.open("https://example.org/"));

        ASSERT_TRUE(until([&] { return !portal.requests().empty(); }));
        EXPECT_EQ(portal.requests()[0].arguments.last().toString(),
                  QStringLiteral("https://example.org/"));
        if (response == 0) {
            QTest::qWait(200);
            EXPECT_EQ(programs.called(), "");
        } else {
            EXPECT_TRUE(until([&] { return !programs.called().empty(); }));
        }
    }
}

TEST(DesktopReviewPrompter, OpensTheSoftwareCentreOnlyWhereThereIsOne)
{
    MessageBus bus;
    const StandInPortal portal{bus, {.versions = {{kOpenUri, 4}}}};
    const Programs programs{"xdg-open", 0};
    DesktopUrlOpener bare{{bus.connect(), [](const std::string&) { return false; }}};
    DesktopReviewPrompter{bare}.requestReview();

    DesktopUrlOpener equipped{
        {bus.connect(), [](const std::string& scheme) { return scheme == "appstream"; }}};
    DesktopReviewPrompter{equipped}.requestReview();
    EXPECT_TRUE(until([&] { return programs.called() == "appstream://com.brindle.lumora|"; }));
    EXPECT_TRUE(portal.requests().empty());
}

TEST(DesktopDocuments, ThePortalPrintsAWholeDocument)
{
    const auto kPrint = QStringLiteral("org.freedesktop.portal.Print");
    for (const uint response : {0U, 1U, 2U}) {
        MessageBus bus;
        const StandInPortal portal{bus, {.versions = {{kPrint, 1}}, .response = response}};
        DesktopDocuments documents{{bus.connect(), {}}};
        ASSERT_TRUE(documents.hasPrintDialog());
        int failures = 0;

        documents.print("Title", "%PDF", [&] { ++failures; });

        const bool fails = response == 2;
        EXPECT_EQ(QTest::qWaitFor([&] { return failures > 0; }, fails ? 5000 : 300), fails);
        ASSERT_EQ(portal.requests().size(), 1U);
        const auto document =
            portal.requests()[0].arguments.value(2).value<QDBusUnixFileDescriptor>();
        QFile reader;
        ASSERT_TRUE(reader.open(document.fileDescriptor(), QIODevice::ReadOnly));
        EXPECT_EQ(reader.readAll(), "%PDF");
    }
}

} // namespace
} // namespace lumora::qt
