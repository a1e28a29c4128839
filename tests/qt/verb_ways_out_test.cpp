// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/qt_share_sheet.h"

#include "qt/document_printing.h"
#include "qt/home_screen.h"
#include "qt/saved_file.h"
#include "qt/table_screen.h"
#include "qt/text_conversion.h"
#include "qt/translations.h"
#include "qt/verb_detail_screen.h"
#include "support/fake_presenter.h"
#include "support/fake_ways_out.h"
#include "window_fixture.h"

#include <QAbstractTextDocumentLayout>
#include <QClipboard>
#include <QFileInfo>
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
    void present()
    {
        sheet.present(screen, {"évanouir (s')", "je m'évanouis\n", "<p>je m'évanouis</p>"},
                      "export");
    }
    /// Goes to `place` from the documents folder and saves.
    void saveAs(int row, const std::string& place, const char* name)
    {
        present();
        sheet.choose(row);
        ASSERT_TRUE(sheet.isAskingWhere());
        sheet.location()->begin(QUrl::fromLocalFile(
            toQString((folder / place / "file").string() +
                      QFileInfo{sheet.location()->name()}.suffix().prepend('.').toStdString())));
        sheet.location()->setName(QString::fromUtf8(name));
        sheet.saveHere();
    }
    std::string lastSentence() const
    {
        return presenter.alerts.empty() ? "" : presenter.alerts.back().alert.message;
    }

    enum Row { Copy, Text, Html, Pdf, Print, Mail };

    support::TemporaryFolder folder;
    support::FakePresenter presenter;
    support::FakeMailService mail;
    platform::ViewController screen;
    const Translations translations{{QStringLiteral("en")}};
    QtShareSheet sheet{presenter, mail, {}};
};

TEST_F(ShareSheetTest, SavesEachKindOfDocumentWhole)
{
    saveAs(Text, "", "a");
    EXPECT_EQ(contentOf(folder / "a.txt"), "je m'évanouis\n");
    saveAs(Html, "", "a.html");
    EXPECT_EQ(contentOf(folder / "a.html"), "<p>je m'évanouis</p>");
    saveAs(Pdf, "", "a.b");
    const auto pdf = contentOf(folder / "a.b.pdf");
    EXPECT_TRUE(pdf.starts_with("%PDF-") && pdf.find("%%EOF") != std::string::npos);
    EXPECT_TRUE(presenter.alerts.empty());
    EXPECT_FALSE(sheet.isOpen());
}

TEST_F(ShareSheetTest, AsksBeforeAFileIsReplaced)
{
    support::writeContent(folder / "a.txt", "before");
    saveAs(Text, "", "a.txt");
    EXPECT_EQ(lastSentence(), "“a.txt” already exists. Replace it?");
    EXPECT_EQ(contentOf(folder / "a.txt"), "before");
    EXPECT_TRUE(sheet.isAskingWhere()) << "for another name";

    presenter.alerts.back().alert.actions.back().handler();
    EXPECT_EQ(contentOf(folder / "a.txt"), "je m'évanouis\n");
    EXPECT_FALSE(sheet.isOpen());
}

TEST_F(ShareSheetTest, SaysThatASaveFailedAndLeavesNothingHalfWritten)
{
    std::filesystem::create_directory(folder / "gone");
    present();
    sheet.choose(Text);
    sheet.location()->begin(QUrl::fromLocalFile(toQString((folder / "gone" / "a.txt").string())));
    std::filesystem::remove(folder / "gone");
    EXPECT_FALSE(sheet.location()->isAcceptable());
    for (const char* name : {"", "  ", "a/b"}) {
        sheet.location()->begin(QUrl::fromLocalFile(toQString((folder / "a.txt").string())));
        sheet.location()->setName(QString::fromUtf8(name));
        EXPECT_FALSE(sheet.location()->isAcceptable()) << name;
    }
    // Longer than a name can be: that is known only when it is tried.
    saveAs(Text, "", std::string(300, 'a').c_str());
    EXPECT_TRUE(lastSentence().ends_with(" could not be saved.")) << lastSentence();
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
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
    const auto row = sheet.rows().at(Mail).toMap();
    EXPECT_FALSE(row.value(QStringLiteral("enabled")).toBool());
    EXPECT_NE(row.value(QStringLiteral("detail")).toString(), QString{}) << "says why";
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
        return presenter.alerts.size() == 1 ||
               sheet.rows().first().toMap().value(QStringLiteral("enabled")).toBool();
    }));
}

TEST(FreeDocument, IsNamedAfterItsTitleAndTakesNoOtherFilesPlace)
{
    const support::TemporaryFolder home;
    std::filesystem::create_directories(home / "Documents");
    const auto oldHome = qgetenv("HOME");
    qputenv("HOME", home.path().c_str());
    const auto name = [](const char* title) {
        return toUtf8(freeDocument(QString::fromUtf8(title), QStringLiteral("txt")).fileName());
    };
    EXPECT_EQ(name("évanouir (s')"), "évanouir (s').txt");
    EXPECT_EQ(name("../a/b\n"), "_..-a-b-.txt");
    EXPECT_EQ(name(""), "_.txt");
    support::writeContent(home / "Documents" / "aller.txt", "");
    support::writeContent(home / "Documents" / "aller 2.txt", "");
    EXPECT_EQ(name("aller"), "aller 3.txt");
    qputenv("HOME", oldHome);
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
    void hold(const QString& name)
    {
        ASSERT_TRUE(QTest::qWaitFor([&] { return find(name) != nullptr; }, kPatience));
        const auto* row = find(name);
        const auto middle = row->mapToScene({row->width() / 2, row->height() / 2}).toPoint();
        QTest::mousePress(application->window(), Qt::LeftButton, {}, middle);
        EXPECT_TRUE(QTest::qWaitFor([&] { return find("preview") != nullptr; }, kPatience));
        QTest::mouseRelease(application->window(), Qt::LeftButton, {}, middle);
        QTest::qWait(300);
    }
};

TEST_F(VerbWindowTest, APreviewIsOpenedOrLeftOrUsedForWhatItsRowOffers)
{
    start({390, 844});
    hold("aller");
    EXPECT_EQ(split().primary().size(), 1);
    EXPECT_EQ(find("mood0"), nullptr);
    QTest::keyClick(application->window(), Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([&] { return find("preview") == nullptr; }, kPatience));
    EXPECT_EQ(split().primary().size(), 1);

    hold("avoir");
    QTest::mouseClick(application->window(), Qt::LeftButton, {}, {8, 400});
    EXPECT_TRUE(QTest::qWaitFor([&] { return find("preview") == nullptr; }, kPatience));

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
    tap("aller");
    tap("avoir");
    tap("tab2");
    hold("aller");
    tap("previewAction0");
    const auto* history = split().home()->currentList()->table()->model();
    EXPECT_EQ(history->rowCount(), 1);
    EXPECT_EQ(history->index(0).data(TableItemModel::TextRole).toString(), QStringLiteral("avoir"));
}

TEST_F(VerbWindowTest, AVerbIsExportedIntoAFile)
{
    start({390, 844});
    const auto oldHome = qgetenv("HOME");
    std::filesystem::create_directories(folder / "Documents");
    qputenv("HOME", folder.path().c_str());
    for (const char* name : {"mustache.min.js", "export_html.mustache", "export_txt.mustache"}) {
        std::filesystem::copy_file(std::filesystem::path{LUMORA_SHARE_DIR} / name,
                                   folder / "share" / name);
    }
    tap("aller");
    tap("bar.export");
    ASSERT_NE(find("shareSheet"), nullptr);
    tap("share1");
    ASSERT_NE(find("saveName"), nullptr);
    QTest::keyClick(application->window(), Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return std::filesystem::exists(folder / "Documents" / "aller.txt"); }, kPatience));
    EXPECT_NE(contentOf(folder / "Documents" / "aller.txt").find("je vais"), std::string::npos);
    qputenv("HOME", oldHome);
}

} // namespace
} // namespace lumora::qt
