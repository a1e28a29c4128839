// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "window.h"

#include <QQuickWindow>

namespace lumora::bench {

const char* const kEmptyWindow = R"(
import QtQuick.Controls.Basic
ApplicationWindow { width: 390; height: 844; visible: true }
)";

qt::ApplicationOptions applicationOptions(const std::filesystem::path& world, const QSize& size)
{
    qt::ApplicationOptions options;
    options.folders = {world / "data", world / "config", world / "state"};
    options.shareFolder = LUMORA_SHARE_DIR;
    options.launchArguments = {"ui_test"};
    options.windowSize = size;
    return options;
}

QQuickWindow* rootWindow(const QQmlApplicationEngine& engine)
{
    return engine.rootObjects().isEmpty()
               ? nullptr
               : qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst());
}

} // namespace lumora::bench
