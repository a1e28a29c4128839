// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/presenter.h"

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>
#include <QVariantList>

#include <deque>
#include <memory>
#include <vector>

namespace lumora::platform {
class Storyboard;
}

namespace lumora::qt {

/// Takes the steps between screens and holds the questions that QML asks, one
/// at a time. GUI thread only.
class QtPresenter final : public QObject, public platform::Presenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the program")
    Q_PROPERTY(bool asking READ asking NOTIFY questionChanged)
    Q_PROPERTY(bool sheet READ isSheet NOTIFY questionChanged)
    Q_PROPERTY(QString questionTitle READ questionTitle NOTIFY questionChanged)
    Q_PROPERTY(QString questionMessage READ questionMessage NOTIFY questionChanged)
    Q_PROPERTY(QVariantList answers READ answers NOTIFY questionChanged)
    Q_PROPERTY(bool cancellable READ isCancellable NOTIFY questionChanged)

public:
    /// The storyboard must outlive this; steps are taken only once it is whole.
    explicit QtPresenter(platform::Storyboard& storyboard);

    void performSegue(platform::ViewController& source, std::string_view identifier,
                      std::optional<platform::IndexPath> sender) override;
    void present(platform::ViewController& on,
                 std::shared_ptr<platform::ViewController> screen) override;
    void presentAlert(platform::ViewController& on, const platform::Alert& alert) override;
    void presentActionSheet(platform::ViewController& on, const platform::ActionSheet& sheet,
                            platform::IndexPath anchor) override;
    void dismiss(platform::ViewController& presented, std::function<void()> completed) override;

    bool asking() const { return !questions_.empty(); }
    bool isSheet() const { return asking() && questions_.front().sheet; }
    QString questionTitle() const;
    QString questionMessage() const;
    /// Maps of title, destructive and cancel.
    QVariantList answers() const;
    /// Whether the question may be left without one of its answers: a sheet
    /// always, an alert when one of its answers cancels.
    bool isCancellable() const;

    Q_INVOKABLE void answer(int index);
    Q_INVOKABLE void cancel();

signals:
    void questionChanged();

private:
    struct Question {
        std::optional<std::string> title;
        std::string message;
        std::vector<platform::AlertAction> actions;
        bool sheet = false;
    };

    void ask(Question question);
    int cancelIndex() const;

    platform::Storyboard& storyboard_;
    std::deque<Question> questions_;
};

} // namespace lumora::qt
