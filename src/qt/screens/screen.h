// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/view_controller.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>
#include <QUrl>
#include <QVariantList>
#include <QVariantMap>

#include <memory>
#include <vector>

namespace lumora::qt {

/// A screen's controller as QML sees it: what its bar shows and which page
/// draws it. Made and kept by the ScreenRegistry. It keeps the controller, so
/// that a page on its way out still has something to show.
class Screen : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the registry")
    Q_PROPERTY(QUrl page READ page CONSTANT)
    Q_PROPERTY(QString title READ title NOTIFY navigationItemChanged)
    Q_PROPERTY(QVariantList leftButtons READ leftButtons NOTIFY navigationItemChanged)
    Q_PROPERTY(QVariantList rightButtons READ rightButtons NOTIFY navigationItemChanged)

public:
    Screen(std::shared_ptr<platform::ViewController> controller, const QString& pageName);
    ~Screen() override;

    const std::shared_ptr<platform::ViewController>& controller() const { return controller_; }
    QUrl page() const { return page_; }
    QString title() const;
    /// Maps of identifier, title, image and enabled.
    QVariantList leftButtons() const;
    QVariantList rightButtons() const;

    Q_INVOKABLE void press(const QString& identifier);
    /// A page that shows this screen says so; the screen outlives it.
    Q_INVOKABLE void attach(QObject* page);

    /// The screens shown inside this one.
    virtual std::vector<std::shared_ptr<platform::ViewController>> visibleChildren() const
    {
        return {};
    }
    virtual std::vector<std::shared_ptr<platform::ViewController>> keptChildren() const
    {
        return {};
    }
    bool isAttached() const { return pages_ > 0; }

signals:
    void navigationItemChanged();
    void childrenChanged();
    /// The last page that showed this screen is gone.
    void detached();

private:
    std::shared_ptr<platform::ViewController> controller_;
    QUrl page_;
    int pages_ = 0;
};

} // namespace lumora::qt
