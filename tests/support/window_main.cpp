// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/app/application.h"
#include "support/temporary_folder.h"

#include <QGuiApplication>
#include <QQuickWindow>

#include <gtest/gtest.h>

namespace {

/// Nobody's own folders and desktop: it has a program for mail, and one that is
/// gone.
void makeDesktop(const lumora::support::TemporaryFolder& home)
{
    const auto applications = home / "applications";
    std::filesystem::create_directory(applications);
    lumora::support::writeContent(applications / "letters.desktop",
                                  "[Desktop Entry]\nType=Application\nName=Letters\n"
                                  "Exec=/bin/true %u\nMimeType=x-scheme-handler/mailto;\n");
    lumora::support::writeContent(applications / "mimeapps.list",
                                  "[Default Applications]\n"
                                  "x-scheme-handler/mailto=letters.desktop\n"
                                  "x-scheme-handler/appstream=gone.desktop\n");
    for (const char* variable : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME",
                                 "XDG_DATA_DIRS", "XDG_CONFIG_DIRS"}) {
        qputenv(variable, home.path().c_str());
    }
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
}

} // namespace

int main(int argc, char** argv)
{
    const lumora::support::TemporaryFolder home;
    makeDesktop(home);
    // On a screen only where a test says so.
    qputenv("QT_QPA_PLATFORM", qEnvironmentVariable("LUMORA_TEST_PLATFORM", "offscreen").toUtf8());
    qputenv("QML_DISABLE_DISK_CACHE", "1");
    // No sound, whatever this machine has.
    qputenv("PULSE_SERVER", "unix:/nonexistent/native");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    testing::InitGoogleTest(&argc, argv);
    const QGuiApplication toolkit{argc, argv};
    lumora::qt::registerInterface();
    return RUN_ALL_TESTS();
}
