// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Lumora

// Beside the form that was searched for, for who does not see its colour.
Rectangle {
    width: 5
    color: Theme.star
}
