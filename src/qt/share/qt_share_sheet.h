// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/machine/file_chooser.h"
#include "platform/screens/mail_composer.h"
#include "platform/screens/presenter.h"
#include "platform/screens/share_sheet.h"
#include "qt/desktop/desktop_documents.h"
#include "qt/share/printers.h"

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QThreadPool>
#include <QtQml/qqmlregistration.h>
#include <QVariantList>

#include <functional>
#include <memory>
#include <vector>

namespace lumora::qt {

/// A row of the share sheet: one way to share, or one printer.
struct ShareOffer {
    Q_GADGET
    QML_VALUE_TYPE(shareOffer)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString detail MEMBER detail FINAL)
    Q_PROPERTY(QString image MEMBER image FINAL)
    Q_PROPERTY(bool enabled MEMBER enabled FINAL)

public:
    QString title;
    /// Why it cannot be chosen; empty where it can.
    QString detail;
    QString image;
    bool enabled = false;
};

/// The share sheet: first the ways to share, then, for printing, the printers.
/// QML shows it and says what was chosen. GUI thread only; printers are asked
/// on a thread of their own.
class QtShareSheet final : public QObject,
                           public platform::ShareSheet,
                           public platform::MailComposerDelegate {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the program")
    Q_PROPERTY(bool open READ isOpen NOTIFY changed)
    Q_PROPERTY(QString heading READ heading NOTIFY changed)
    Q_PROPERTY(QVariantList rows READ rows NOTIFY changed)
    Q_PROPERTY(QQuickItem* anchor READ anchor NOTIFY changed)

public:
    /// Presenter, mail and file chooser must outlive this.
    QtShareSheet(platform::Presenter& presenter, platform::MailService& mail,
                 platform::FileChooser& files, const Desktop& desktop);
    ~QtShareSheet() override;

    /// Where bar buttons are looked for.
    void setWindow(QQuickWindow* window) { window_ = window; }

    void present(platform::ViewController& on, platform::ShareItems items,
                 std::string_view anchor) override;
    void mailComposeDidFinish(platform::MailComposer& composer,
                              platform::MailComposeResult result) override;

    bool isOpen() const { return stage_ != Stage::Closed; }
    /// What is shared, or what the rows choose.
    QString heading() const;
    /// Of ShareOffer.
    QVariantList rows() const;
    /// The bar button that the sheet stands by; null when it is out of sight.
    QQuickItem* anchor() const { return anchor_; }

    Q_INVOKABLE void choose(int row);
    Q_INVOKABLE void cancel();

signals:
    void changed();

private:
    enum class Stage { Closed, Offers, Printers };
    struct Row {
        QString title;
        QString detail;
        const char* image = "";
        std::function<void()> chosen;
    };
    /// What is saved once it is known where.
    struct Document {
        std::string suffix;
        std::function<QByteArray()> content;
    };

    /// A message under way, and what it is about.
    struct Sending {
        std::weak_ptr<platform::MailComposer> composer;
        QString title;
    };

    void show(Stage stage, std::vector<Row> rows = {});
    void offer();
    void copy();
    void askWhere(const Document& document);
    void save(const QString& file, const Document& document);
    void lookForPrinters();
    void offerPrinters(const QList<Printer>& printers);
    void print(const QString& printerName);
    void printThroughDesktop();
    void send();
    void sayThat(const QString& sentence);
    void saySaveFailed(const QString& fileName);
    void sayPrintFailed(const QString& title);

    platform::Presenter& presenter_;
    platform::MailService& mail_;
    platform::FileChooser& files_;
    DesktopDocuments desktop_;
    /// Stands for the sheet where a screen is asked for.
    platform::ViewController screen_;
    QPointer<QQuickWindow> window_;
    QPointer<QQuickItem> anchor_;
    QString title_;
    QString text_;
    QString html_;
    Stage stage_ = Stage::Closed;
    /// Counts what was shown, so that late news of printers changes nothing.
    int shown_ = 0;
    std::vector<Row> rows_;
    std::vector<Sending> sendings_;
    /// Last: it ends before what its work comes back to.
    QThreadPool printing_;
};

} // namespace lumora::qt
