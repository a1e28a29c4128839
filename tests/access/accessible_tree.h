// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QRect>
#include <QString>

#include <vector>

namespace lumora::support {

/// What a screen reader is told about one thing on the screen.
struct Accessible {
    QString role;
    QString name;
    QRect area;
    quint64 states = 0;

    /// A state by its number in the protocol.
    enum State { Checked = 4, Focusable = 11, Selected = 23, Visible = 30, Checkable = 41 };
    bool is(State state) const { return (states >> state & 1) != 0; }
};

/// Everything of this program that shows, as another program reads it over
/// AT-SPI, in the order of reading. Lets this one's event loop answer meanwhile.
std::vector<Accessible> accessibleTree();

} // namespace lumora::support
