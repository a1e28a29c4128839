// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/view_controller.h"

#include <QObject>
#include <QtQml/qqml.h>
#include <QtQml/qqmlregistration.h>
#include <QUrl>
#include <QVariantList>

#include <memory>
#include <vector>

namespace lumora::qt {

/// A button of a screen's bar.
struct ScreenButton {
    Q_GADGET
    QML_VALUE_TYPE(screenButton)
    Q_PROPERTY(QString identifier MEMBER identifier FINAL)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString image MEMBER image FINAL)
    Q_PROPERTY(bool enabled MEMBER enabled FINAL)

public:
    QString identifier;
    QString title;
    QString image;
    bool enabled = true;
};

/// A screen's controller as QML sees it: what its bar shows and which page
/// draws it. Made and kept by the ScreenRegistry. It keeps the controller, so
/// that a page on its way out still has something to show. Subclasses name it in
/// full, since that is how the checker of QML finds their base.
class Screen : public QObject {
    Q_OBJECT
    // The toolkit has a Screen of its own.
    QML_NAMED_ELEMENT(AppScreen)
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
    /// Of ScreenButton.
    QVariantList leftButtons() const;
    QVariantList rightButtons() const;

    Q_INVOKABLE void press(const QString& identifier);
    /// A page that shows this screen says so; the screen outlives it.
    Q_INVOKABLE void attach(QObject* page);
    /// The page shows another screen from now on.
    Q_INVOKABLE void detach(QObject* page);

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
    void pageGone();

    std::shared_ptr<platform::ViewController> controller_;
    QUrl page_;
    int pages_ = 0;
};

/// Tells the checker of QML what a list of screens is.
struct ScreenList {
    Q_GADGET
    QML_ANONYMOUS
    QML_FOREIGN(QList<QObject*>)
    QML_SEQUENTIAL_CONTAINER(QObject*)
};

} // namespace lumora::qt
