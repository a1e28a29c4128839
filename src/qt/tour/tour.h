// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QSize>

#include <filesystem>
#include <functional>
#include <memory>

class QQuickWindow;

namespace lumora::qt {

/// A program on the screen.
struct ShownProgram {
    /// Ends with its last owner.
    std::shared_ptr<QObject> program;
    /// The program's; null when it could not be built.
    QQuickWindow* window = nullptr;
};

/// What a round of the tour is seen in.
struct Look {
    QSize window;
    bool dark = false;
    double textScale = 1;
};

/// Starts the whole program in that look, with all its files below `home`.
using StartProgram =
    std::function<ShownProgram(const Look& look, const std::filesystem::path& home)>;

/// Drives the real program through every screen, in both sizes and both themes,
/// through a long verb's page in large text as well, and writes a picture of each into `folder`. It
/// has files of its own, so nothing of a person's changes. The exit status: 0 when every picture
/// was written.
int runTour(const std::filesystem::path& folder, const StartProgram& start);

} // namespace lumora::qt
