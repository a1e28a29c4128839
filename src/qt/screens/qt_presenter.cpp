// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/screens/qt_presenter.h"

#include "platform/screens/mail_composer.h"
#include "platform/screens/split_view_controller.h"
#include "platform/screens/storyboard.h"
#include "platform/screens/table_view_controller.h"
#include "qt/base/text_conversion.h"

#include <QQmlEngine>

#include <algorithm>
#include <utility>

namespace lumora::qt {

QtPresenter::QtPresenter(platform::Storyboard& storyboard) : storyboard_{storyboard}
{
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
}

void QtPresenter::performSegue(platform::ViewController& source, std::string_view identifier,
                               std::optional<platform::IndexPath> sender)
{
    const auto destination = platform::prepareSegue(storyboard_, source, identifier, sender);
    if (!destination) {
        return;
    }
    const auto style = storyboard_.segueStyle(identifier);
    if (style != platform::SegueStyle::ShowDetail) {
        modals_.present(destination, style);
    } else if (auto* split = source.splitViewController()) {
        split->showDetailViewController(destination);
    }
}

void QtPresenter::previewSegue(platform::ViewController& source, std::string_view identifier,
                               std::optional<platform::IndexPath> sender)
{
    if (auto destination = platform::prepareSegue(storyboard_, source, identifier, sender)) {
        preview_.show(std::move(destination), source);
    }
}

void QtPresenter::present(platform::ViewController& /*on*/,
                          std::shared_ptr<platform::ViewController> screen)
{
    auto mail = std::dynamic_pointer_cast<platform::MailComposer>(screen);
    if (!mail) {
        modals_.present(std::move(screen), platform::SegueStyle::PresentModally);
        return;
    }
    // Its window is another program's: there is nothing of it to show here.
    std::erase_if(mails_, [](const auto& each) { return each.expired(); });
    mails_.push_back(mail);
    mail->loadViewIfNeeded();
    mail->viewWillAppear();
    mail->viewDidAppear();
}

void QtPresenter::presentAlert(platform::ViewController& /*on*/, const platform::Alert& alert)
{
    ask({alert.title, alert.message, alert.actions, false, {}, {}});
}

void QtPresenter::presentActionSheet(platform::ViewController& on,
                                     const platform::ActionSheet& sheet, platform::IndexPath anchor)
{
    auto* screen = dynamic_cast<platform::TableViewController*>(&on);
    auto* table = screen == nullptr ? nullptr : dynamic_cast<QtTableView*>(&screen->tableView());
    ask({sheet.title, {}, sheet.actions, true, table, anchor});
}

void QtPresenter::dismiss(platform::ViewController& presented, std::function<void()> completed)
{
    const auto mail =
        std::ranges::find(mails_, &presented, [](const auto& each) { return each.lock().get(); });
    if (mail == mails_.end()) {
        modals_.dismiss(presented, std::move(completed));
        return;
    }
    // Kept until the composer, which may be calling, is through.
    QMetaObject::invokeMethod(
        this, [kept = mail->lock()] {}, Qt::QueuedConnection);
    mails_.erase(mail);
    presented.viewDidDisappear();
    if (completed) {
        completed();
    }
}

void QtPresenter::setPanes(SplitScreen* panes)
{
    panes_ = panes;
    emit panesChanged();
}

void QtPresenter::ask(Question question)
{
    // A notice that is given again takes the place of the first, so that it is
    // answered once.
    if (asking() && question.isNotice() && questions_.back().isNotice() &&
        question.title == questions_.back().title &&
        question.message == questions_.back().message) {
        questions_.back() = std::move(question);
        return;
    }
    questions_.push_back(std::move(question));
    if (questions_.size() == 1) {
        emit questionChanged();
    }
}

QString QtPresenter::questionTitle() const
{
    return asking() && questions_.front().title ? toQString(*questions_.front().title) : QString{};
}

QString QtPresenter::questionMessage() const
{
    return asking() ? toQString(questions_.front().message) : QString{};
}

QVariantList QtPresenter::answers() const
{
    QVariantList list;
    if (!asking()) {
        return list;
    }
    for (const auto& action : questions_.front().actions) {
        list.append(QVariant::fromValue(QuestionAnswer{
            toQString(action.title), action.style == platform::ActionStyle::Destructive,
            action.style == platform::ActionStyle::Cancel, action.chosen}));
    }
    return list;
}

QtTableView* QtPresenter::anchorTable() const
{
    return asking() ? questions_.front().anchorTable.data() : nullptr;
}

int QtPresenter::anchorRow() const
{
    const auto* table = anchorTable();
    return table == nullptr ? -1 : table->model()->listRow(questions_.front().anchor);
}

int QtPresenter::cancelIndex() const
{
    if (!asking()) {
        return -1;
    }
    const auto& actions = questions_.front().actions;
    const auto found = std::find_if(actions.begin(), actions.end(), [](const auto& action) {
        return action.style == platform::ActionStyle::Cancel;
    });
    return found == actions.end() ? -1 : static_cast<int>(found - actions.begin());
}

bool QtPresenter::isCancellable() const
{
    return isSheet() || cancelIndex() >= 0;
}

void QtPresenter::answer(int index)
{
    if (!asking() || index < 0 ||
        static_cast<std::size_t>(index) >= questions_.front().actions.size()) {
        return;
    }
    const auto handler = questions_.front().actions[static_cast<std::size_t>(index)].handler;
    questions_.pop_front();
    emit questionChanged();
    if (handler) {
        handler();
    }
}

void QtPresenter::cancel()
{
    if (!isCancellable()) {
        return;
    }
    if (const int index = cancelIndex(); index >= 0) {
        answer(index);
        return;
    }
    questions_.pop_front();
    emit questionChanged();
}

void QtPresenter::withdraw()
{
    preview_.close();
    // What an answer asks anew is not withdrawn.
    for (auto left = questions_.size(); left > 0 && isCancellable(); --left) {
        cancel();
    }
}

} // namespace lumora::qt
