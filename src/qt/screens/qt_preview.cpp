// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/screens/qt_preview.h"

#include "detail/verb_detail_table_view_controller.h"
#include "lists/interstitial_table_view_controller.h"
#include "navigation/home_view_controller.h"
#include "platform/screens/navigation_controller.h"
#include "platform/screens/split_view_controller.h"

#include <QQmlEngine>

#include <utility>

namespace lumora::qt {

QtPreview::QtPreview(QObject* parent) : QObject{parent}
{
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
}

QtPreview::~QtPreview() = default;

void QtPreview::show(std::shared_ptr<platform::ViewController> destination,
                     platform::ViewController& source)
{
    const auto stack = std::dynamic_pointer_cast<platform::NavigationController>(destination);
    const auto verb = stack ? std::dynamic_pointer_cast<detail::VerbDetailTableViewController>(
                                  stack->viewControllers().back())
                            : nullptr;
    if (!verb || !verb->selectedVerb) {
        return;
    }
    close();
    verb->isPeeking = true;
    destination_ = std::move(destination);
    controller_ = verb;
    split_ = source.splitViewController();
    // A result is held in the results, but the step is the home screen's.
    if (auto* const list = dynamic_cast<lists::InterstitialTableViewController*>(&source)) {
        findRowsIn(*list);
    } else if (const auto* home = dynamic_cast<navigation::HomeViewController*>(&source);
               home != nullptr && home->searchResultsController()) {
        findRowsIn(*home->searchResultsController());
    } else {
        table_ = nullptr;
    }
    emit changed();
}

template <typename List>
void QtPreview::findRowsIn(List& list)
{
    table_ = dynamic_cast<QtTableView*>(&list.tableView());
    pathOfVerb_ = [&list](std::int64_t id) { return list.pathOfVerb(id); };
}

std::shared_ptr<platform::ViewController> QtPreview::controller() const
{
    return controller_;
}

void QtPreview::setScreen(Screen* screen)
{
    if (screen_ != screen) {
        screen_ = screen;
        emit screenChanged();
    }
}

int QtPreview::rowOfVerb() const
{
    if (!table_ || !controller_) {
        return -1;
    }
    const auto path = pathOfVerb_(controller_->selectedVerb->id);
    return path ? table_->model()->listRow(*path) : -1;
}

QVariantList QtPreview::actions() const
{
    const int row = rowOfVerb();
    return row < 0 ? QVariantList{} : table_->model()->trailingActions(row);
}

void QtPreview::open()
{
    const auto opened = destination_;
    const auto verb = controller_;
    auto* split = split_;
    // The screen disappears as a preview, then appears in its place.
    close();
    if (opened && split != nullptr) {
        verb->isPeeking = false;
        split->showDetailViewController(opened);
    }
}

void QtPreview::close()
{
    if (!controller_) {
        return;
    }
    destination_.reset();
    controller_.reset();
    setScreen(nullptr);
    emit changed();
}

void QtPreview::trigger(int action)
{
    const int row = rowOfVerb();
    const QPointer table = table_;
    close();
    if (table && row >= 0) {
        table->model()->trailingActions(row);
        table->model()->triggerAction(row, action);
    }
}

} // namespace lumora::qt
