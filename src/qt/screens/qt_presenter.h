// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/presenter.h"
#include "qt/models/qt_table_view.h"
#include "qt/screens/modal_stack.h"
#include "qt/screens/qt_preview.h"

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QtQml/qqmlregistration.h>
#include <QVariantList>

#include <deque>
#include <memory>
#include <vector>

namespace lumora::platform {
class MailComposer;
}

namespace lumora::qt {

class SplitScreen;

/// What a question may be answered with.
struct QuestionAnswer {
    Q_GADGET
    QML_VALUE_TYPE(questionAnswer)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(bool destructive MEMBER destructive FINAL)
    Q_PROPERTY(bool cancel MEMBER cancel FINAL)
    Q_PROPERTY(bool chosen MEMBER chosen FINAL)

public:
    QString title;
    bool destructive = false;
    /// Leaves everything as it is.
    bool cancel = false;
    /// How it is now.
    bool chosen = false;
};

/// Takes the steps between screens, keeps those that lie over the others, and
/// holds the questions that QML asks, one at a time. GUI thread only.
class QtPresenter final : public QObject, public platform::Presenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the program")
    Q_MOC_INCLUDE("qt/screens/split_screen.h")
    Q_PROPERTY(lumora::qt::SplitScreen* panes READ panes NOTIFY panesChanged)
    Q_PROPERTY(lumora::qt::QtPreview* preview READ preview CONSTANT)
    Q_PROPERTY(bool asking READ asking NOTIFY questionChanged)
    Q_PROPERTY(bool sheet READ isSheet NOTIFY questionChanged)
    Q_PROPERTY(QString questionTitle READ questionTitle NOTIFY questionChanged)
    Q_PROPERTY(QString questionMessage READ questionMessage NOTIFY questionChanged)
    Q_PROPERTY(QVariantList answers READ answers NOTIFY questionChanged)
    Q_PROPERTY(int cancelIndex READ cancelIndex NOTIFY questionChanged)
    Q_PROPERTY(bool cancellable READ isCancellable NOTIFY questionChanged)
    Q_PROPERTY(lumora::qt::QtTableView* anchorTable READ anchorTable NOTIFY questionChanged)
    Q_PROPERTY(int anchorRow READ anchorRow NOTIFY questionChanged)
    Q_PROPERTY(lumora::qt::ModalStack* modals READ modals CONSTANT)

public:
    /// The storyboard must outlive this; steps are taken only once it is whole.
    explicit QtPresenter(platform::Storyboard& storyboard);

    void performSegue(platform::ViewController& source, std::string_view identifier,
                      std::optional<platform::IndexPath> sender) override;
    void previewSegue(platform::ViewController& source, std::string_view identifier,
                      std::optional<platform::IndexPath> sender) override;
    void present(platform::ViewController& on,
                 std::shared_ptr<platform::ViewController> screen) override;
    void presentAlert(platform::ViewController& on, const platform::Alert& alert) override;
    void presentActionSheet(platform::ViewController& on, const platform::ActionSheet& sheet,
                            platform::IndexPath anchor) override;
    void dismiss(platform::ViewController& presented, std::function<void()> completed) override;

    /// What the window shows; null until the launch is through.
    SplitScreen* panes() const { return panes_; }
    /// They must outlive the window.
    void setPanes(SplitScreen* panes);
    QtPreview* preview() { return &preview_; }
    bool asking() const { return !questions_.empty(); }
    bool isSheet() const { return asking() && questions_.front().sheet; }
    QString questionTitle() const;
    QString questionMessage() const;
    /// Of QuestionAnswer.
    QVariantList answers() const;
    /// Which of the answers cancels; -1 for none.
    int cancelIndex() const;
    /// Whether the question may be left without one of its answers: a sheet
    /// always, an alert when one of its answers cancels.
    bool isCancellable() const;
    /// The row that a sheet rises from; null and -1 when there is none.
    QtTableView* anchorTable() const;
    int anchorRow() const;
    ModalStack* modals() { return &modals_; }

    /// Closes the preview, and answers the waiting questions with their cancelling
    /// answers. After that the screens that asked may be destroyed.
    void withdraw();

    Q_INVOKABLE void answer(int index);
    Q_INVOKABLE void cancel();

signals:
    void panesChanged();
    void questionChanged();

private:
    struct Question {
        std::optional<std::string> title;
        std::string message;
        std::vector<platform::AlertAction> actions;
        bool sheet = false;
        QPointer<QtTableView> anchorTable;
        platform::IndexPath anchor;

        /// Whether it only tells something: its one answer does nothing.
        bool isNotice() const { return !sheet && actions.size() == 1 && !actions.front().handler; }
    };

    void ask(Question question);

    platform::Storyboard& storyboard_;
    SplitScreen* panes_ = nullptr;
    ModalStack modals_{this};
    QtPreview preview_{this};
    /// On show in another program's window. They keep themselves until their
    /// outcome is known.
    std::vector<std::weak_ptr<platform::MailComposer>> mails_;
    std::deque<Question> questions_;
};

} // namespace lumora::qt
