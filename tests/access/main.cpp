// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/app/application.h"
#include "support/message_bus.h"
#include "support/temporary_folder.h"

#include <QGuiApplication>
#include <QProcess>
#include <QQuickWindow>
#include <QStandardPaths>

#include <iostream>

#include <gtest/gtest.h>

namespace {

using lumora::support::TemporaryFolder;

/// A screen without a monitor, and what a screen reader would listen to: only
/// with both does the toolkit speak to it.
class Desktop {
public:
    Desktop()
    {
        for (const char* variable :
             {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_RUNTIME_DIR"}) {
            qputenv(variable, home_.path().c_str());
        }
        std::filesystem::permissions(home_.path(), std::filesystem::perms::owner_all);
        screen_.start(QStringLiteral("Xvfb"),
                      {"-displayfd", "1", "-screen", "0", "1280x1024x24", "-nolisten", "tcp"});
        while (!screen_.canReadLine() && screen_.waitForReadyRead()) {
        }
        qputenv("DISPLAY", ":" + screen_.readLine().trimmed());
        qputenv("DBUS_SESSION_BUS_ADDRESS", bus_.address().toUtf8());
        qputenv("QT_QPA_PLATFORM", "xcb");
        qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
        accessibility_.start(QStringLiteral("/usr/libexec/at-spi-bus-launcher"),
                             {"--launch-immediately"});
        accessibility_.waitForStarted();
    }
    ~Desktop()
    {
        for (auto* process : {&accessibility_, &screen_}) {
            process->terminate();
            process->waitForFinished();
        }
    }

private:
    TemporaryFolder home_;
    QProcess screen_;
    lumora::support::MessageBus bus_;
    QProcess accessibility_;
};

} // namespace

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    if (GTEST_FLAG_GET(list_tests)) {
        return RUN_ALL_TESTS();
    }
    if (QStandardPaths::findExecutable(QStringLiteral("Xvfb")).isEmpty()) {
        std::cout << "skipped: without Xvfb there is no screen to read\n";
        constexpr int kSkipped = 77;
        return kSkipped;
    }
    const Desktop desktop;
    qputenv("QML_DISABLE_DISK_CACHE", "1");
    qputenv("PULSE_SERVER", "unix:/nonexistent/native");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication toolkit{argc, argv};
    lumora::qt::registerInterface();
    return RUN_ALL_TESTS();
}
