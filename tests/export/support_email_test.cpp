// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "export/support_email_sender.h"

#include "build_settings.h"
#include "support/world.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace lumora {
namespace {

using exporting::SupportEmailSender;
using platform::MailComposeResult;
using support::World;

class SupportEmail : public testing::Test {
protected:
    void SetUp() override
    {
        world.bundle.texts["app.title"] = "Lumora";
        world.bundle.texts["support.email"] = "help@brindle.example";
        world.bundle.info["CFBundleShortVersionString"] = "2.1";
        world.bundle.info["CFBundleVersion"] = "7";
        world.device.model = "Slate 10";
        world.device.machine = "slate10,2";
        world.device.system = "17.1";
        email->sender = &screen;
    }

    support::FakeMailComposer& composer() { return *world.mail.composers.back(); }
    std::vector<std::string> alertTitles() const
    {
        std::vector<std::string> titles;
        for (const auto& [on, alert] : world.presenter.alerts) {
            EXPECT_EQ(on, &screen);
            EXPECT_EQ(alert.actions.size(), 1U);
            EXPECT_EQ(alert.actions[0].title, "common.ok");
            EXPECT_EQ(alert.actions[0].style, platform::ActionStyle::Cancel);
            titles.push_back(alert.title.value_or("") + " / " + alert.message);
        }
        return titles;
    }

    std::shared_ptr<SupportEmailSender> newEmail()
    {
        return std::make_shared<SupportEmailSender>(world.bundle, world.device, world.mail,
                                                    world.urlOpener, world.presenter);
    }

    World world;
    platform::ViewController screen;
    std::shared_ptr<SupportEmailSender> email = newEmail();
};

TEST_F(SupportEmail, ComposesAMessageThatNamesProgramAndDevice)
{
    email->start();
    EXPECT_EQ(composer().recipients, std::vector<std::string>{"help@brindle.example"});
    EXPECT_EQ(composer().subject, "Lumora");
    EXPECT_TRUE(composer().isHtml);
    EXPECT_EQ(composer().body, "<br /><br /><br /><hr />App: Lumora<br />Device: Slate 10 "
                               "(slate10,2)<br />iOS: 17.1<br />App: 2.1 (7)");
    ASSERT_EQ(world.presenter.presentedScreens.size(), 1U);
    EXPECT_EQ(world.presenter.presentedScreens[0].on, &screen);
    EXPECT_EQ(world.presenter.presentedScreens[0].screen.get(), &composer());

    world.device.machine = std::nullopt;
    world.bundle.info.erase("CFBundleVersion");
    email->start();
    EXPECT_TRUE(composer().body.ends_with("(Unknown Platform)<br />iOS: 17.1<br />App: "))
        << composer().body;
}

TEST_F(SupportEmail, TellsTheOutcome)
{
    const std::string error = "export.email.error / export.email.message";
    struct {
        MailComposeResult result;
        std::vector<std::string> atOnce;
        std::vector<std::string> inTheEnd;
    } const cases[] = {
        {MailComposeResult::Cancelled, {}, {}},
        {MailComposeResult::Saved, {}, {}},
        {MailComposeResult::Sent,
         {},
         {"support.emailsuccess.title / support.emailsuccess.subject"}},
        {MailComposeResult::Failed, {error}, {error, error}},
    };
    world.presenter.holdsDismissals = true;
    for (const auto& c : cases) {
        SCOPED_TRACE(static_cast<int>(c.result));
        world.presenter.alerts.clear();
        email->start();
        composer().finish(c.result);
        EXPECT_EQ(world.presenter.dismissed.back(), &composer());
        EXPECT_EQ(alertTitles(), c.atOnce);
        world.presenter.finishDismissals();
        EXPECT_EQ(alertTitles(), c.inTheEnd);
    }
}

TEST_F(SupportEmail, OpensTheContactPageWhereNoMailCanBeSent)
{
    world.mail.canSend = false;
    email->start();
    EXPECT_EQ(world.urlOpener.opened, std::vector<std::string>{std::string{build::kContactUrl}});
    EXPECT_TRUE(world.presenter.alerts.empty());

    world.urlOpener.opens = false;
    email->start();
    EXPECT_EQ(alertTitles(), std::vector<std::string>{"export.email.error / export.email.message"});
    EXPECT_TRUE(world.mail.composers.empty());
}

TEST_F(SupportEmail, AnOutcomeThatNobodyWaitsForIsNoTrouble)
{
    world.presenter.holdsDismissals = true;
    email->start();
    composer().finish(MailComposeResult::Sent);
    email.reset();
    world.presenter.finishDismissals();

    email = newEmail();
    email->sender = &screen;
    email->start();
    email.reset();
    composer().finish(MailComposeResult::Failed);
    EXPECT_TRUE(world.presenter.alerts.empty());
}

} // namespace
} // namespace lumora
