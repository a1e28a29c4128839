// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/screens/modal_stack.h"

#include <QQmlEngine>

#include <algorithm>
#include <utility>

namespace lumora::qt {

ModalStack::ModalStack(QObject* parent) : QAbstractListModel{parent}
{
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
}

ModalStack::~ModalStack() = default;

void ModalStack::setFullScreen(bool fullScreen)
{
    if (std::exchange(fullScreen_, fullScreen) != fullScreen) {
        emit fullScreenChanged();
    }
}

void ModalStack::present(std::shared_ptr<platform::ViewController> controller,
                         platform::SegueStyle style)
{
    auto modal = std::make_unique<Modal>(std::move(controller), style);
    connect(modal.get(), &Modal::gone, this, [this, gone = modal.get()] { remove(gone); });
    connect(modal.get(), &Modal::dismissRequested, this,
            [this, leaving = modal.get()] { dismiss(*leaving->controller(), {}); });
    beginInsertRows({}, count(), count());
    modals_.push_back(std::move(modal));
    endInsertRows();
    emit changed();
}

void ModalStack::dismiss(const platform::ViewController& screen, Modal::Completion completed)
{
    const auto found = std::find_if(modals_.begin(), modals_.end(),
                                    [&](const auto& modal) { return modal->holds(screen); });
    if (found == modals_.end()) {
        if (completed) {
            completed();
        }
        return;
    }
    // Out of a copy: one that is not shown goes at once.
    std::vector<Modal*> leaving;
    for (auto modal = modals_.end(); modal != found;) {
        leaving.push_back((--modal)->get());
    }
    auto* const last = leaving.back();
    leaving.pop_back();
    for (auto* modal : leaving) {
        modal->leave(nullptr);
    }
    last->leave(std::move(completed));
}

void ModalStack::remove(const Modal* modal)
{
    const auto found = std::find_if(modals_.begin(), modals_.end(),
                                    [&](const auto& each) { return each.get() == modal; });
    if (found == modals_.end()) {
        return;
    }
    const auto row = static_cast<int>(found - modals_.begin());
    // Its page, which may be calling, reads it until the end of the call.
    auto* const removed = found->release();
    beginRemoveRows({}, row, row);
    modals_.erase(found);
    endRemoveRows();
    removed->setParent(this);
    removed->deleteLater();
    emit changed();
    for (const auto& completed : removed->takeCompletions()) {
        completed();
    }
}

int ModalStack::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant ModalStack::data(const QModelIndex& index, int role) const
{
    if (role != ModalRole || !checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    return QVariant::fromValue(modals_[static_cast<std::size_t>(index.row())].get());
}

QHash<int, QByteArray> ModalStack::roleNames() const
{
    return {{ModalRole, "modal"}};
}

} // namespace lumora::qt
