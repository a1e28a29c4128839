// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/files/atomic_file.h"
#include "qt/app/application.h"
#include "qt/app/command_line.h"
#include "qt/app/search_provider.h"
#include "qt/base/library_files.h"
#include "qt/base/text_conversion.h"
#include "qt/base/translations.h"
#include "qt/desktop/termination_signals.h"
#include "qt/desktop/url_handlers.h"
#include "qt/tour/tour.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QLocale>
#include <QQuickWindow>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <iostream>
#include <iterator>
#include <memory>
#include <optional>
#include <utility>

namespace {

using namespace lumora::qt;

constexpr int kFailed = 1;
constexpr int kMisused = 2;

/// Whether there is a display; without one the toolkit would end the program.
bool hasDisplay()
{
    constexpr const char* kVariables[] = {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};
    return std::any_of(std::begin(kVariables), std::end(kVariables), qEnvironmentVariableIsSet);
}

/// What must be settled before the toolkit starts.
void prepareEnvironment(bool tour)
{
    QCoreApplication::setAttribute(Qt::AA_DisableShaderDiskCache);
    if (!tour) {
        // Switching the toolkit's cache off would throw away what was compiled
        // at build time too.
        keepLibraryFilesIn(StandardFolders::fromEnvironment().state);
    } else {
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") &&
            !qEnvironmentVariableIsSet("DISPLAY") &&
            !qEnvironmentVariableIsSet("WAYLAND_DISPLAY")) {
            qputenv("QT_QPA_PLATFORM", "offscreen");
        }
        qputenv("QML_DISABLE_DISK_CACHE", "1");
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    }
}

/// The desktop's permission for this start to take the keyboard focus; the
/// toolkit takes it out of the environment.
QString activationToken()
{
    const auto token = qEnvironmentVariable("XDG_ACTIVATION_TOKEN");
    return token.isEmpty() ? qEnvironmentVariable("DESKTOP_STARTUP_ID") : token;
}

std::filesystem::path shareFolder()
{
    return std::filesystem::path{toUtf8(QCoreApplication::applicationDirPath())}.parent_path() /
           "share" / "lumora";
}

std::string version()
{
    return QtBundle{shareFolder()}.infoValue("CFBundleShortVersionString").value_or("unknown");
}

/// What is printed needs no display.
int print(const CommandLine& commandLine, int argc, char** argv)
{
    const QCoreApplication toolkit{argc, argv};
    if (commandLine.help) {
        std::cout << CommandLine::helpText();
    } else {
        std::cout << "lumora " << version() << '\n';
    }
    return 0;
}

/// As long as nobody wants the window; none when nobody has searched for a while.
std::optional<InstanceRequest> waitForRequest(const RunningInstance& instance,
                                              const SearchProvider& provider)
{
    constexpr std::chrono::minutes kIdle{2};
    QEventLoop loop;
    QTimer idle;
    idle.setSingleShot(true);
    idle.setInterval(kIdle);
    std::optional<InstanceRequest> wanted;
    const auto take = [&](const InstanceRequest& request) {
        wanted = request;
        loop.quit();
    };
    QObject::connect(&instance, &RunningInstance::requested, &loop, take);
    QObject::connect(&provider, &SearchProvider::requested, &loop, take);
    QObject::connect(&provider, &SearchProvider::asked, &idle, qOverload<>(&QTimer::start));
    QObject::connect(&idle, &QTimer::timeout, &loop, &QEventLoop::quit);
    const TerminationSignals termination;
    QObject::connect(&termination, &TerminationSignals::received, &loop, &QEventLoop::quit);
    idle.start();
    loop.exec();
    return wanted;
}

int runApplication(const CommandLine& commandLine, InstanceRequest request)
{
    Desktop desktop{QDBusConnection::sessionBus(), hasUrlHandler, isSandboxed()};
    RunningInstance instance{desktop.bus};
    const SearchProvider provider{desktop.bus, StandardFolders::fromEnvironment(), shareFolder()};
    switch (instance.start(request)) {
    case RunningInstance::Role::First:
        break;
    case RunningInstance::Role::Second:
        return 0;
    case RunningInstance::Role::NoAnswer:
        std::cerr << "lumora: the program that runs already does not answer\n";
        return kFailed;
    }

    const Translations translations{QLocale::system().uiLanguages()};
    if (commandLine.service) {
        auto wanted = waitForRequest(instance, provider);
        if (!wanted) {
            return 0;
        }
        request = *std::move(wanted);
    }
    registerInterface();
    ApplicationOptions options;
    options.folders = StandardFolders::fromEnvironment();
    if (const auto made = lumora::platform::makePrivateFolder(options.folders.state); !made) {
        std::cerr << "lumora: " << made.error().message << '\n';
    }
    options.shareFolder = shareFolder();
    for (const auto& argument : commandLine.launchArguments) {
        options.launchArguments.push_back(toUtf8(argument));
    }
    if (request.shortcut) {
        options.shortcut = toUtf8(*request.shortcut);
    }
    for (const auto& link : request.links) {
        options.links.push_back(toUtf8(link));
    }
    options.desktop = std::move(desktop);
    Application application{options};
    application.installCrashHandler();
    QObject::connect(&instance, &RunningInstance::requested, &application, &Application::serve);
    QObject::connect(&provider, &SearchProvider::requested, &application, &Application::serve);
    const TerminationSignals termination;
    QObject::connect(&termination, &TerminationSignals::received,
                     [] { QCoreApplication::exit(0); });
    if (!application.show()) {
        std::cerr << "lumora: the window could not be built\n";
        return kFailed;
    }
    if (commandLine.service || request.text) {
        // A shortcut and links are part of the launch.
        application.serve({{}, {}, request.activationToken, request.text, request.form});
    }
    const int status = QGuiApplication::exec();
    application.enterBackground();
    return status;
}

ShownProgram showForTour(const Look& look, const std::filesystem::path& home)
{
    ApplicationOptions options;
    options.folders = {home / "data", home / "config", home / "state"};
    options.shareFolder = shareFolder();
    options.launchArguments = {"ui_test"};
    options.windowSize = look.window;
    auto application = std::make_shared<Application>(options);
    if (!application->show()) {
        return {};
    }
    application->launch();
    application->appearance().setDesktop({.dark = look.dark, .textScale = look.textScale});
    return {application, application->window()};
}

} // namespace

int main(int argc, char** argv)
{
    QStringList arguments;
    std::transform(argv, argv + argc, std::back_inserter(arguments),
                   [](const char* argument) { return QString::fromLocal8Bit(argument); });
    const auto commandLine = CommandLine::parse(arguments);
    if (commandLine.error) {
        std::cerr << "lumora: " << toUtf8(*commandLine.error) << '\n';
        return kMisused;
    }
    if (commandLine.help || commandLine.version) {
        return print(commandLine, argc, argv);
    }

    if (!commandLine.tourFolder && !commandLine.choosesPlatform && !hasDisplay()) {
        std::cerr << "lumora: there is no display\n";
        return kFailed;
    }
    prepareEnvironment(commandLine.tourFolder.has_value());
    InstanceRequest request{commandLine.shortcut, commandLine.links, activationToken()};
    if (commandLine.lookUp) {
        request.text = TextRequest{*commandLine.lookUp};
    }
    const QGuiApplication toolkit{argc, argv};
    QCoreApplication::setApplicationName(QStringLiteral("lumora"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Lumora"));
    QGuiApplication::setDesktopFileName(QStringLiteral("com.brindle.lumora"));
    QCoreApplication::setApplicationVersion(toQString(version()));
    if (commandLine.tourFolder) {
        const Translations translations{QLocale::system().uiLanguages()};
        registerInterface();
        return runTour(toUtf8(*commandLine.tourFolder), showForTour);
    }
    return runApplication(commandLine, request);
}
