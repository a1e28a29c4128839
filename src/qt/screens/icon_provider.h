// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QQuickImageProvider>

namespace lumora::qt {

/// The program's own drawings in any colour and size:
/// "image://icon/NAME/COLOUR/RADIUS", COLOUR being six hexadecimal digits that
/// stand for the drawing's "currentColor", RADIUS pixels that its corners lose.
class IconProvider final : public QQuickImageProvider {
public:
    IconProvider();
    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};

} // namespace lumora::qt
