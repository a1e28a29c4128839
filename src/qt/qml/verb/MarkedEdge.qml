// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// Marks the form that was searched for, for people who do not see its colour.
Rectangle {
    width: 5
    color: Theme.star
}
