// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

import Lumora

// A screen that has nothing but its bar.
ScreenPage {}
