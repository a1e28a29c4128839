// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/app/application.h"
#include "support/temporary_folder.h"

#include <QGuiApplication>
#include <QQuickWindow>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QML_DISABLE_DISK_CACHE", "1");
    // Whatever this machine has: in silence.
    qputenv("PULSE_SERVER", "unix:/nonexistent/native");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    // Nobody's own folders.
    const lumora::support::TemporaryFolder home;
    for (const char* variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"}) {
        qputenv(variable, home.path().c_str());
    }
    testing::InitGoogleTest(&argc, argv);
    const QGuiApplication toolkit{argc, argv};
    lumora::qt::registerInterface();
    return RUN_ALL_TESTS();
}
