// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "qt/app/application.h"
#include "qt/tour/window_driver.h"

#include <QQmlApplicationEngine>
#include <QSize>

#include <filesystem>

namespace lumora::bench {

/// The whole application without a display. `world` holds its three folders,
/// so that a second one finds the database there, as at every start but the
/// first.
qt::ApplicationOptions applicationOptions(const std::filesystem::path& world, const QSize& size);

/// An empty window of the toolkit, of a phone's size.
extern const char* const kEmptyWindow;

QQuickWindow* rootWindow(const QQmlApplicationEngine& engine);

} // namespace lumora::bench
