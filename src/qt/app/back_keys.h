// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>

namespace lumora::qt {

/// Makes of the desktop's ways to say "back", Alt+Left and the mouse's button
/// for it, the one key that every layer of the window answers. A filter of the
/// window's events; the window owns it.
class BackKeys final : public QObject {
    Q_OBJECT

public:
    /// The window must be a parent that lives as long.
    explicit BackKeys(QObject* window);

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace lumora::qt
