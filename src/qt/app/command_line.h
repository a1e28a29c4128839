// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace lumora::qt {

/// What the program was started with. Read before the toolkit starts, which
/// ends the program where there is no display.
struct CommandLine {
    /// One line; when it is set, nothing else is.
    std::optional<QString> error;
    bool help = false;
    bool version = false;
    /// The toolkit is told what to draw on.
    bool choosesPlatform = false;
    std::optional<QString> tourFolder;
    std::optional<QString> shortcut;
    /// A text to look up.
    std::optional<QString> lookUp;
    /// No window until somebody asks for one.
    bool service = false;
    /// What is meant for this program among the arguments.
    QStringList links;
    /// All others, for example "ui_test".
    QStringList launchArguments;

    /// `arguments` with the program's name first. Options of the toolkit pass
    /// unread.
    static CommandLine parse(const QStringList& arguments);
    static const char* helpText();
};

} // namespace lumora::qt
