// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/screens/qt_presenter.h"

#include "app/main_storyboard.h"
#include "support/fake_share_and_mail.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace lumora::qt {
namespace {

struct PresenterTest : testing::Test {
    app::MainStoryboard storyboard;
    QtPresenter presenter{storyboard};
    platform::ViewController screen;
    std::string answered;

    platform::AlertAction action(const char* title,
                                 platform::ActionStyle style = platform::ActionStyle::Normal)
    {
        return {title, style, [this, title] { answered += title; }};
    }
};

TEST_F(PresenterTest, AsksOneQuestionAfterTheOther)
{
    presenter.presentAlert(screen, {"First", "message", {action("a"), action("b")}});
    presenter.presentAlert(screen, {std::nullopt, "second", {action("c")}});

    EXPECT_EQ(presenter.questionTitle(), QStringLiteral("First"));
    presenter.answer(7);
    EXPECT_EQ(answered, "");
    presenter.answer(1);
    EXPECT_EQ(presenter.questionMessage(), QStringLiteral("second"));
    presenter.answer(0);
    EXPECT_EQ(answered, "bc");
    EXPECT_FALSE(presenter.asking());
}

TEST_F(PresenterTest, ANoticeGivenAgainIsAnsweredOnce)
{
    const auto failed = platform::notice("Mail", "could not be sent", "OK");
    presenter.presentAlert(screen, {"Mail", "could not be sent", {action("again")}});
    presenter.presentAlert(screen, failed);
    presenter.presentAlert(screen, failed);
    presenter.presentAlert(screen, platform::notice("Mail", "other", "OK"));

    presenter.answer(0);
    EXPECT_EQ(answered, "again") << "what does something is asked";
    presenter.answer(0);
    EXPECT_EQ(presenter.questionMessage(), QStringLiteral("other"));
}

TEST_F(PresenterTest, LeavesAQuestionOnlyByAnAnswerThatCancelsOrFromASheet)
{
    presenter.presentAlert(screen, {"Sure?", "", {action("yes")}});
    presenter.cancel();
    EXPECT_TRUE(presenter.asking()) << "an alert without a way out needs its answer";
    presenter.answer(0);

    presenter.presentAlert(
        screen, {"Sure?", "", {action("go"), action("no", platform::ActionStyle::Cancel)}});
    presenter.cancel();
    presenter.presentActionSheet(screen, {std::nullopt, {action("speed")}}, {0, 0});
    EXPECT_TRUE(presenter.isSheet());
    presenter.cancel();

    EXPECT_FALSE(presenter.asking());
    EXPECT_EQ(answered, "yesno");
}

TEST_F(PresenterTest, OpensAMailWithoutAPageAndKeepsNoneLongerThanItsCalls)
{
    class Mail final : public support::FakeMailComposer {
    public:
        void viewDidAppear() override { open = true; }
        bool open = false;
    };
    auto mail = std::make_shared<Mail>();
    const std::weak_ptr kept = mail;
    presenter.present(screen, mail);
    EXPECT_TRUE(mail->open);
    EXPECT_EQ(presenter.modals()->count(), 0);

    bool completed = false;
    auto& ending = *mail;
    presenter.dismiss(ending, [&] {
        completed = true;
        mail.reset();
    });
    EXPECT_TRUE(completed);
    EXPECT_FALSE(kept.expired()) << "it may be in the middle of a call";
    QCoreApplication::processEvents();
    EXPECT_TRUE(kept.expired());

    // Whose sender has gone is dismissed by nobody.
    mail = std::make_shared<Mail>();
    const std::weak_ptr orphan = mail;
    presenter.present(screen, std::move(mail));
    EXPECT_TRUE(orphan.expired());
}

} // namespace
} // namespace lumora::qt
