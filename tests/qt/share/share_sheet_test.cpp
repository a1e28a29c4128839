// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/share/qt_share_sheet.h"

#include "qt/base/text_conversion.h"
#include "qt/base/translations.h"
#include "qt/screens/home_screen.h"
#include "qt/screens/table_screen.h"
#include "qt/screens/verb_detail_screen.h"
#include "qt/share/document_printing.h"
#include "qt/share/qt_file_chooser.h"
#include "qt/share/saved_file.h"
#include "support/environment_variable.h"
#include "support/fake_presenter.h"
#include "support/fake_share_and_mail.h"
#include "support/window_fixture.h"

#include <QAbstractTextDocumentLayout>
#include <QClipboard>
#include <QGuiApplication>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>

// A verb previewed, and a verb handed on.
namespace lumora::qt {
namespace {

using support::contentOf;

/// The sheet without a window.
class ShareSheetTest : public testing::Test {
protected:
    enum Row { Copy, Text, Html, Pdf, Print, Mail };

    void present()
    {
        sheet.present(screen, {"évanouir (s')", "je m'évanouis\n", "<p>je m'évanouis</p>"},
                      "export");
    }
    void saveAs(Row row, const char* name)
    {
        present();
        sheet.choose(row);
        ASSERT_TRUE(files.question);
        EXPECT_FALSE(sheet.isOpen());
        EXPECT_EQ(files.question->purpose, platform::FileQuestion::Purpose::Save);
        files.chosen(folder / name);
    }
    std::string lastSentence() const
    {
        return presenter.alerts.empty() ? "" : presenter.alerts.back().alert.message;
    }

    support::TemporaryFolder folder;
    support::FakePresenter presenter;
    support::FakeMailService mail;
    platform::ViewController screen;
    const Translations translations{{QStringLiteral("en")}};
    support::FakeFileChooser files;
    QtShareSheet sheet{presenter, mail, files, {}};
};

TEST_F(ShareSheetTest, SavesEachKindOfDocumentWhole)
{
    saveAs(Text, "a.txt");
    EXPECT_EQ(files.question->suggestedName, "évanouir (s')");
    EXPECT_EQ(files.question->extension, "txt");
    EXPECT_EQ(contentOf(folder / "a.txt"), "je m'évanouis\n");
    saveAs(Html, "a.html");
    EXPECT_EQ(contentOf(folder / "a.html"), "<p>je m'évanouis</p>");
    saveAs(Pdf, "a.pdf");
    const auto pdf = contentOf(folder / "a.pdf");
    EXPECT_TRUE(pdf.starts_with("%PDF-") && pdf.find("%%EOF") != std::string::npos);
    EXPECT_TRUE(presenter.alerts.empty());
}

TEST_F(ShareSheetTest, SaysThatASaveFailedAndLeavesNothingHalfWritten)
{
    for (const auto& name : {std::string(300, 'a'), std::string{"gone/a.txt"}}) {
        saveAs(Text, name.c_str());
        EXPECT_TRUE(lastSentence().ends_with(" could not be saved.")) << lastSentence();
    }
    EXPECT_EQ(presenter.alerts.size(), 2U);
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

/// Where the desktop has no dialog, a form in the window.
class FileFormTest : public testing::Test {
protected:
    void ask(platform::FileQuestion::Purpose purpose)
    {
        chooser.choose({purpose, "Title", "Kind", "txt", "../a/b\n"},
                       [this](const auto& file) { chosen = file; });
    }
    void goTo(const char* name) { chooser.location()->begin(toQString((folder / name).string())); }

    support::TemporaryFolder folder;
    support::FakePresenter presenter;
    const Translations translations{{QStringLiteral("en")}};
    QtFileChooser chooser{presenter, {}};
    std::filesystem::path chosen;
};

TEST_F(FileFormTest, SavesUnderANameThatTheFolderTakes)
{
    ask(platform::FileQuestion::Purpose::Save);
    EXPECT_EQ(chooser.location()->name(), "_..-a-b-.txt");
    for (const char* name : {"", "  ", "a/b"}) {
        goTo("a.txt");
        chooser.location()->setName(QString::fromUtf8(name));
        chooser.acceptLocation();
        EXPECT_TRUE(chooser.asking()) << name;
    }
    std::filesystem::create_directory(folder / "gone");
    goTo("gone/a.txt");
    std::filesystem::remove(folder / "gone");
    EXPECT_FALSE(chooser.location()->isAcceptable());

    goTo("a.txt");
    chooser.location()->setName(QStringLiteral(" a.b "));
    chooser.acceptLocation();
    EXPECT_EQ(chosen, folder / "a.b.txt");
    EXPECT_FALSE(chooser.asking());
}

TEST_F(FileFormTest, AsksBeforeAFileIsReplaced)
{
    support::writeContent(folder / "a.txt", "before");
    ask(platform::FileQuestion::Purpose::Save);
    goTo("a.txt");
    chooser.acceptLocation();
    ASSERT_EQ(presenter.alerts.size(), 1U);
    EXPECT_EQ(presenter.alerts[0].alert.message, "“a.txt” already exists. Replace it?");
    EXPECT_TRUE(chooser.asking()) << "for another name";
    EXPECT_EQ(chosen, "");

    const auto agree = presenter.alerts[0].alert.actions.back().handler;
    agree();
    EXPECT_EQ(chosen, folder / "a.txt");

    // It is free, and in the folder of the last file.
    ask(platform::FileQuestion::Purpose::Save);
    EXPECT_EQ(chooser.location()->file(), toQString((folder / "_..-a-b-.txt").string()));
    chosen.clear();
    agree();
    EXPECT_TRUE(chosen.empty()) << "the answer was to another question";
}

TEST_F(ShareSheetTest, CopiesPrintsAndSends)
{
    present();
    sheet.choose(Copy);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("je m'évanouis\n"));
    EXPECT_FALSE(sheet.isOpen());

    present();
    sheet.choose(Mail);
    ASSERT_EQ(mail.composers.size(), 1U);
    EXPECT_EQ(mail.composers.front()->subject, "évanouir (s')");
    EXPECT_EQ(mail.composers.front()->body, "je m'évanouis\n");
    EXPECT_FALSE(mail.composers.front()->isHtml);
    mail.composers.front()->finish(platform::MailComposeResult::Sent);
    EXPECT_TRUE(presenter.alerts.empty());
    mail.composers.front()->finish(platform::MailComposeResult::Failed);
    EXPECT_EQ(presenter.alerts.size(), 1U);

    mail.canSend = false;
    present();
    const auto row = sheet.rows().at(Mail).value<ShareOffer>();
    EXPECT_FALSE(row.enabled);
    EXPECT_NE(row.detail, QString{}) << "says why";
    sheet.choose(Mail);
    EXPECT_EQ(mail.composers.size(), 1U);

    // Without a printer that is said, but not once the person has gone on to
    // something else.
    presenter.alerts.clear();
    sheet.choose(Print);
    sheet.cancel();
    present();
    QTest::qWait(300);
    EXPECT_TRUE(presenter.alerts.empty());
    sheet.choose(Print);
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return presenter.alerts.size() == 1 || sheet.rows().first().value<ShareOffer>().enabled;
    }));
}

TEST(FreeFile, TakesNoOtherFilesPlace)
{
    const support::TemporaryFolder folder;
    support::writeContent(folder / "aller.txt", "");
    support::writeContent(folder / "aller 2.txt", "");
    const auto place = toQString(folder.path().string());
    EXPECT_EQ(freeFile(place, "aller", "txt"), place + "/aller 3.txt");
    EXPECT_EQ(freeFile(place, "", "txt"), place + "/_.txt");
}

TEST(FitToPages, ShrinksUntilWordsAreWholeAndOnePageHoldsThem)
{
    struct Case {
        double width;
        double height;
        bool smaller;
        bool onOnePage;
        const char* why;
    };
    // Of what the text needs at full size.
    const Case cases[] = {
        {1.1, 1.1, false, true, "room for all"},
        {0.95, 1.1, true, true, "words wider than the page"},
        {1.1, 0.95, true, true, "a little too long"},
        {1.1, 0.3, false, false, "far too long: several pages, as large as can be"},
        {0.95, 0.3, true, false, "both"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        QTextDocument document;
        document.setDocumentMargin(0);
        document.setHtml(QStringLiteral("<p>anticonstitutionnellement</p>").repeated(40));
        document.setPageSize({1000, 100000});
        const QSizeF needed{document.idealWidth(),
                            document.documentLayout()->documentSize().height()};
        const double scale =
            fitToPages(document, {needed.width() * c.width, needed.height() * c.height});
        EXPECT_EQ(scale < 1, c.smaller) << scale;
        EXPECT_GT(scale, 0.8);
        EXPECT_EQ(document.pageCount() == 1, c.onOnePage);
        EXPECT_EQ(document.firstBlock().layout()->lineCount(), 1);
    }
}

class VerbWindowTest : public qt::WindowFixture {
protected:
    /// Holds a row as a finger does.
    void hold(const QString& name) const
    {
        const auto* row = settled(name);
        ASSERT_NE(row, nullptr);
        const auto middle = middleOf(*row);
        QTest::mousePress(application->window(), Qt::LeftButton, {}, middle);
        EXPECT_TRUE(until([&] { return find("preview") != nullptr; }));
        QTest::mouseRelease(application->window(), Qt::LeftButton, {}, middle);
        EXPECT_NE(settled("preview"), nullptr);
    }
};

TEST_F(VerbWindowTest, APreviewIsOpenedOrLeftOrUsedForWhatItsRowOffers)
{
    start({390, 844});
    hold("aller");
    EXPECT_EQ(split().primary().size(), 1);
    EXPECT_EQ(find("mood0"), nullptr);
    keys("Esc");
    EXPECT_TRUE(until([&] { return find("preview") == nullptr; }));
    EXPECT_EQ(split().primary().size(), 1);

    hold("avoir");
    QTest::mouseClick(application->window(), Qt::LeftButton, {}, {8, 400});
    EXPECT_TRUE(until([&] { return find("preview") == nullptr; }));

    hold("avoir");
    tap("previewAction0");
    EXPECT_EQ(find("preview"), nullptr);
    EXPECT_EQ(find("avoir")->property("image").toString(), QStringLiteral("ic_favorite_list"));

    hold("aller");
    auto* previewed = application->presenter().preview()->screen();
    tap("preview");
    ASSERT_EQ(split().primary().size(), 2);
    EXPECT_EQ(split().primary().last(), previewed) << "the same screen";
    EXPECT_NE(find("mood0"), nullptr);
    EXPECT_EQ(find("preview"), nullptr);
}

TEST_F(VerbWindowTest, AVerbOfTheHistoryIsRemovedFromItsPreview)
{
    start({1024, 768});
    tap("aller", "avoir", "tab2");
    hold("aller");
    tap("previewAction0");
    const auto* history = split().home()->currentList()->table()->model();
    EXPECT_EQ(history->rowCount(), 1);
    EXPECT_EQ(history->index(0).data(TableItemModel::TextRole).toString(), QStringLiteral("avoir"));
}

TEST_F(VerbWindowTest, AVerbIsExportedIntoAFile)
{
    start({390, 844});
    const support::EnvironmentVariable home{"HOME", folder.path()};
    std::filesystem::create_directories(folder / "Documents");
    tap("aller", "bar.export", "share1");
    ASSERT_NE(find("fileName"), nullptr);
    keys("Return");
    EXPECT_TRUE(until([&] { return std::filesystem::exists(folder / "Documents" / "aller.txt"); }));
    EXPECT_NE(contentOf(folder / "Documents" / "aller.txt").find("je vais"), std::string::npos);
}

} // namespace
} // namespace lumora::qt
