// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QProcessEnvironment>

#include <filesystem>

namespace lumora::qt {

/// Sends what the toolkit and the libraries below it keep for themselves
/// (compiled pages, compiled shaders, the sound server's cookie) to the
/// program's own state folder; they would spread it over the person's home. What
/// the environment settles already is left as it is. Before the toolkit starts;
/// the folder must be there before the first window.
void keepLibraryFilesIn(const std::filesystem::path& state);

/// For a program that is started from this one: the environment without what
/// was settled for this one alone.
QProcessEnvironment environmentForOthers();

} // namespace lumora::qt
