// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A screen that has nothing but its bar.
ScreenPage {}
