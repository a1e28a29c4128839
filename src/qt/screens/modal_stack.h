// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "qt/screens/modal.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <vector>

namespace lumora::qt {

/// The screens over the panes, the topmost last, as a list for QML. GUI thread
/// only.
class ModalStack final : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to the presenter")
    Q_PROPERTY(int count READ count NOTIFY changed)
    Q_PROPERTY(bool fullScreen READ isFullScreen NOTIFY fullScreenChanged)

public:
    enum Role { ModalRole = Qt::UserRole + 1 };

    explicit ModalStack(QObject* parent);
    ~ModalStack() override;

    int count() const { return static_cast<int>(modals_.size()); }
    const std::vector<std::unique_ptr<Modal>>& modals() const { return modals_; }

    /// Whether a modal, unless it is a side menu, hides what is below it. So
    /// on a narrow window.
    bool isFullScreen() const { return fullScreen_; }
    void setFullScreen(bool fullScreen);

    void present(std::shared_ptr<platform::ViewController> controller, platform::SegueStyle style);
    /// Takes away the modal that holds the screen, with those above it;
    /// `completed` runs when it has gone, at once where no modal holds it.
    void dismiss(const platform::ViewController& screen, Modal::Completion completed);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void changed();
    void fullScreenChanged();

private:
    void remove(const Modal* modal);

    std::vector<std::unique_ptr<Modal>> modals_;
    bool fullScreen_ = true;
};

} // namespace lumora::qt
