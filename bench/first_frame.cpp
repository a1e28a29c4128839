// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "first_frame.h"

#include "qt/application.h"
#include "support/temporary_folder.h"

#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QProcess>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

namespace lumora::bench {

namespace {

constexpr const char* kEmpty = "--first-frame-of-an-empty-window";
constexpr const char* kLumora = "--first-frame-of-lumora";
constexpr const char* kLumoraList = "--first-frame-of-lumoras-list";

constexpr const char* kEmptyWindow = R"(
import QtQuick.Controls.Basic
ApplicationWindow { width: 390; height: 844; visible: true }
)";

/// Ends the process at the first frame for which `ready`; what ending costs is
/// not part of it.
template <typename Ready>
int runUntilFrame(QQuickWindow* window, Ready ready)
{
    if (window == nullptr) {
        return 1;
    }
    QObject::connect(window, &QQuickWindow::frameSwapped, window, [ready] {
        if (ready()) {
            std::_Exit(0);
        }
    });
    return QGuiApplication::exec();
}

bool always()
{
    return true;
}

int showEmptyWindow()
{
    QQmlApplicationEngine engine;
    engine.loadData(kEmptyWindow);
    return engine.rootObjects().isEmpty()
               ? 1
               : runUntilFrame(qobject_cast<QQuickWindow*>(engine.rootObjects().first()), always);
}

/// `world` holds the three folders, the database in them already, as at every
/// start but the first.
int showLumora(const std::filesystem::path& world, bool withList)
{
    qt::registerInterface();
    qt::ApplicationOptions options;
    options.folders = {world / "data", world / "config", world / "state"};
    options.shareFolder = LUMORA_SHARE_DIR;
    qt::Application application{options};
    if (!application.show()) {
        return 1;
    }
    return withList ? runUntilFrame(application.window(),
                                    [&application] { return application.isLaunched(); })
                    : runUntilFrame(application.window(), always);
}

void runChild(benchmark::State& state, const std::string& program, const QStringList& arguments)
{
    for ([[maybe_unused]] auto _ : state) {
        if (QProcess::execute(QString::fromStdString(program), arguments) != 0) {
            state.SkipWithError("the window did not show");
            return;
        }
    }
}

} // namespace

int showFirstFrame(int argc, char** argv)
{
    const std::string_view asked = argc > 1 ? argv[1] : "";
    if (asked != kEmpty && asked != kLumora && asked != kLumoraList) {
        return -1;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication toolkit{argc, argv};
    return asked == kEmpty ? showEmptyWindow() : showLumora(argv[2], asked == kLumoraList);
}

void registerFirstFrameBenchmarks(const char* program)
{
    static const support::TemporaryFolder world;
    const std::string self = std::filesystem::absolute(program).string();
    const QString folder = QString::fromStdString(world.path().string());
    for (const auto& [name, arguments] :
         {std::pair{"first_frame/empty_window", QStringList{kEmpty}},
          std::pair{"first_frame/lumora", QStringList{kLumora, folder}},
          std::pair{"first_frame/lumora_with_its_list", QStringList{kLumoraList, folder}}}) {
        benchmark::RegisterBenchmark(name,
                                     [self, arguments = arguments](benchmark::State& state) {
                                         runChild(state, self, arguments);
                                     })
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->Iterations(1)
            ->Repetitions(15)
            ->ReportAggregatesOnly();
    }
}

} // namespace lumora::bench
