// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/share/qt_share_sheet.h"

#include "qt/base/text_conversion.h"
#include "qt/screens/screen.h"
#include "qt/share/document_printing.h"
#include "qt/share/saved_file.h"

#include <QClipboard>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QtConcurrentRun>

#include <algorithm>
#include <utility>

namespace lumora::qt {

namespace {

/// The bar button of that name in the bar of the screen.
QQuickItem* barButton(QQuickItem* parent, const QString& name,
                      const platform::ViewController& controller)
{
    for (auto* child : parent->childItems()) {
        if (!child->isVisible()) {
            continue;
        }
        if (child->objectName() == name) {
            const auto* screen = child->property("screen").value<Screen*>();
            if (screen != nullptr && screen->controller().get() == &controller) {
                return child;
            }
        }
        if (auto* found = barButton(child, name, controller)) {
            return found;
        }
    }
    return nullptr;
}

} // namespace

QtShareSheet::QtShareSheet(platform::Presenter& presenter, platform::MailService& mail,
                           platform::FileChooser& files, const Desktop& desktop)
    : presenter_{presenter}, mail_{mail}, files_{files}, desktop_{desktop}
{
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
    printing_.setMaxThreadCount(1);
}

QtShareSheet::~QtShareSheet()
{
    for (const auto& sending : sendings_) {
        if (const auto composer = sending.composer.lock()) {
            composer->setMailComposeDelegate(nullptr);
        }
    }
}

void QtShareSheet::present(platform::ViewController& on, platform::ShareItems items,
                           std::string_view anchor)
{
    title_ = toQString(items.title);
    text_ = toQString(items.text);
    html_ = toQString(items.html);
    anchor_ =
        window_ ? barButton(window_->contentItem(), QStringLiteral("bar.") + toQString(anchor), on)
                : nullptr;
    offer();
}

void QtShareSheet::show(Stage stage, std::vector<Row> rows)
{
    stage_ = stage;
    rows_ = std::move(rows);
    ++shown_;
    emit changed();
}

void QtShareSheet::offer()
{
    const bool canSend = mail_.canSendMail();
    // Copies, so that what is saved stays what it was when the sheet opened.
    const Document text{"txt", [text = text_] { return text.toUtf8(); }};
    const Document html{"html", [html = html_] { return html.toUtf8(); }};
    const Document pdf{"pdf", [html = html_, title = title_] { return pdfOf(html, title); }};
    show(Stage::Offers,
         {{qtTrId("share.copy"), {}, "share_copy", [this] { copy(); }},
          {qtTrId("share.save.text"), {}, "share_text", [this, text] { askWhere(text); }},
          {qtTrId("share.save.html"), {}, "share_html", [this, html] { askWhere(html); }},
          {qtTrId("share.save.pdf"), {}, "share_pdf", [this, pdf] { askWhere(pdf); }},
          {qtTrId("share.print"), {}, "share_print", [this] { lookForPrinters(); }},
          {qtTrId("share.mail"), canSend ? QString{} : qtTrId("share.mail.unavailable"),
           "share_mail", canSend ? std::function<void()>{[this] { send(); }} : nullptr}});
}

QString QtShareSheet::heading() const
{
    return stage_ == Stage::Printers ? qtTrId("share.print.where") : title_;
}

QVariantList QtShareSheet::rows() const
{
    QVariantList list;
    for (const auto& row : rows_) {
        list.append(QVariant::fromValue(ShareOffer{
            row.title, row.detail, QString::fromLatin1(row.image), row.chosen != nullptr}));
    }
    return list;
}

void QtShareSheet::choose(int row)
{
    if (!isOpen() || row < 0 || static_cast<std::size_t>(row) >= rows_.size()) {
        return;
    }
    // A copy: what is chosen may change the rows.
    if (const auto chosen = rows_[static_cast<std::size_t>(row)].chosen) {
        chosen();
    }
}

void QtShareSheet::cancel()
{
    if (stage_ != Stage::Closed) {
        show(Stage::Closed);
    }
}

void QtShareSheet::copy()
{
    QGuiApplication::clipboard()->setText(text_);
    cancel();
    emit told(qtTrId("notice.copied"));
}

void QtShareSheet::askWhere(const Document& document)
{
    cancel();
    files_.choose({.purpose = platform::FileQuestion::Purpose::Save,
                   .title = toUtf8(title_),
                   .kind = {},
                   .extension = document.suffix,
                   .suggestedName = toUtf8(title_)},
                  [self = QPointer{this}, document](const std::filesystem::path& file) {
                      if (self) {
                          self->save(QFile::decodeName(file.c_str()), document);
                      }
                  });
}

void QtShareSheet::save(const QString& file, const Document& document)
{
    const auto content = document.content();
    if (content.isEmpty() || !saveFile(file, content)) {
        saySaveFailed(QFileInfo{file}.fileName());
        return;
    }
    emit told(qtTrId("notice.saved").arg(QFileInfo{file}.fileName()));
}

void QtShareSheet::lookForPrinters()
{
    if (desktop_.hasPrintDialog()) {
        printThroughDesktop();
        return;
    }
    show(Stage::Printers, {{qtTrId("share.print.looking"), {}, {}, nullptr}});
    QtConcurrent::run(&printing_, &availablePrinters)
        .then(this, [this, shown = shown_](const QList<Printer>& printers) {
            if (shown == shown_) {
                offerPrinters(printers);
            }
        });
}

void QtShareSheet::printThroughDesktop()
{
    cancel();
    QtConcurrent::run(&printing_, &pdfOf, html_, title_)
        .then(this, [this, title = title_](const QByteArray& pdf) {
            if (pdf.isEmpty()) {
                sayPrintFailed(title);
                return;
            }
            desktop_.print(title, pdf, [this, title] { sayPrintFailed(title); });
        });
}

void QtShareSheet::offerPrinters(const QList<Printer>& printers)
{
    if (printers.isEmpty()) {
        cancel();
        sayThat(qtTrId("share.print.none"));
        return;
    }
    std::vector<Row> rows;
    for (const auto& printer : printers) {
        rows.push_back(
            {printer.description, {}, "share_print", [this, name = printer.name] { print(name); }});
    }
    show(Stage::Printers, std::move(rows));
}

void QtShareSheet::print(const QString& printerName)
{
    cancel();
    QtConcurrent::run(&printing_, &printDocument, html_, title_, printerName)
        .then(this, [this, title = title_](bool taken) {
            if (!taken) {
                sayPrintFailed(title);
            }
        });
}

void QtShareSheet::send()
{
    cancel();
    const auto composer = mail_.makeMailComposer();
    std::erase_if(sendings_, [](const Sending& sending) { return sending.composer.expired(); });
    sendings_.push_back({composer, title_});
    composer->setMailComposeDelegate(this);
    composer->setSubject(toUtf8(title_));
    composer->setMessageBody(toUtf8(text_), false);
    presenter_.present(screen_, composer);
}

void QtShareSheet::mailComposeDidFinish(platform::MailComposer& composer,
                                        platform::MailComposeResult result)
{
    const auto sending = std::ranges::find_if(
        sendings_, [&](const Sending& each) { return each.composer.lock().get() == &composer; });
    const auto title = sending == sendings_.end() ? title_ : sending->title;
    presenter_.dismiss(composer, [self = QPointer{this}, result, title] {
        if (self && result == platform::MailComposeResult::Failed) {
            self->sayThat(qtTrId("share.mail.failed").arg(title));
        }
    });
}

void QtShareSheet::saySaveFailed(const QString& fileName)
{
    sayThat(qtTrId("share.save.failed").arg(fileName));
}

void QtShareSheet::sayPrintFailed(const QString& title)
{
    sayThat(qtTrId("share.print.failed").arg(title));
}

void QtShareSheet::sayThat(const QString& sentence)
{
    presenter_.presentAlert(
        screen_, platform::notice(std::nullopt, toUtf8(sentence), toUtf8(qtTrId("common.ok"))));
}

} // namespace lumora::qt
