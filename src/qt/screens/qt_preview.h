// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/index_path.h"
#include "platform/screens/view_controller.h"
#include "qt/models/qt_table_view.h"
#include "qt/screens/screen.h"

#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>
#include <QVariantList>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

namespace lumora::detail {
class VerbDetailTableViewController;
}

namespace lumora::qt {

/// A verb shown small over the list it was held in, with what its row offers,
/// until the user opens it or closes it. Belongs to the presenter; the window
/// wraps its screen. GUI thread only.
class QtPreview final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to the presenter")
    Q_PROPERTY(lumora::qt::Screen* screen READ screen NOTIFY screenChanged)
    Q_PROPERTY(QVariantList actions READ actions NOTIFY screenChanged)

public:
    explicit QtPreview(QObject* parent);
    ~QtPreview() override;

    /// `destination` is where a step from `source` leads, prepared; nothing is
    /// shown when that is no verb.
    void show(std::shared_ptr<platform::ViewController> destination,
              platform::ViewController& source);
    /// The verb's screen; null while there is no preview.
    std::shared_ptr<platform::ViewController> controller() const;
    /// Told by the window once the screen is built.
    void setScreen(Screen* screen);

    Screen* screen() const { return screen_; }
    /// What swiping the verb's row offers, as SwipeOffer.
    QVariantList actions() const;

    /// Takes the verb to where a tap on its row would have.
    Q_INVOKABLE void open();
    Q_INVOKABLE void close();
    /// Closes the preview and does one of the actions.
    Q_INVOKABLE void trigger(int action);

signals:
    /// There is another preview, or none any more.
    void changed();
    void screenChanged();

private:
    template <typename List>
    void findRowsIn(List& list);
    /// The row of the list that shows the verb; -1 for none. It may have moved
    /// since, as the history does when the verb is seen.
    int rowOfVerb() const;

    std::shared_ptr<platform::ViewController> destination_;
    std::shared_ptr<detail::VerbDetailTableViewController> controller_;
    QPointer<Screen> screen_;
    platform::SplitViewController* split_ = nullptr;
    /// The table that the verb was held in, and how its list finds a verb; the
    /// list lives as long as its table.
    QPointer<QtTableView> table_;
    std::function<std::optional<platform::IndexPath>(std::int64_t id)> pathOfVerb_;
};

} // namespace lumora::qt
