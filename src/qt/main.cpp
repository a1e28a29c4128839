// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/application.h"
#include "qt/text_conversion.h"
#include "qt/tour.h"
#include "qt/translations.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QLocale>
#include <QQuickWindow>

#include <cstring>
#include <iostream>

namespace {

using namespace lumora::qt;

bool asksFor(int argc, char** argv, const char* option)
{
    const auto length = std::strlen(option);
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], option) == 0 ||
            (std::strncmp(argv[i], option, length) == 0 && argv[i][length] == '=')) {
            return true;
        }
    }
    return false;
}

/// What must be settled before the toolkit starts.
void prepareEnvironment(bool tour, bool withoutWindow)
{
    // Nothing is written outside the program's own folders. Switching the
    // cache off would throw away what was compiled at build time too.
    const auto cache = StandardFolders::fromEnvironment().state / "qml";
    qputenv("QML_DISK_CACHE_PATH", cache.c_str());
    QCoreApplication::setAttribute(Qt::AA_DisableShaderDiskCache);
    if (withoutWindow && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM") &&
        !qEnvironmentVariableIsSet("DISPLAY") && !qEnvironmentVariableIsSet("WAYLAND_DISPLAY")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    if (tour) {
        qputenv("QML_DISABLE_DISK_CACHE", "1");
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    }
}

std::filesystem::path shareFolder()
{
    return std::filesystem::path{toUtf8(QCoreApplication::applicationDirPath())}.parent_path() /
           "share" / "lumora";
}

} // namespace

int main(int argc, char** argv)
{
    const bool tour = asksFor(argc, argv, "--tour");
    prepareEnvironment(tour, tour || asksFor(argc, argv, "--help") || asksFor(argc, argv, "-h") ||
                                 asksFor(argc, argv, "--version") || asksFor(argc, argv, "-v"));
    QGuiApplication toolkit{argc, argv};
    QCoreApplication::setApplicationName(QStringLiteral("lumora"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Lumora"));
    QGuiApplication::setDesktopFileName(QStringLiteral("com.brindle.lumora"));
    const QtBundle facts{shareFolder()};
    QCoreApplication::setApplicationVersion(
        toQString(facts.infoValue("CFBundleShortVersionString").value_or("unknown")));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("The conjugations of French verbs."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption tourOption{
        QStringLiteral("tour"),
        QStringLiteral("Write a picture of every screen into <folder> and end."),
        QStringLiteral("folder")};
    const QCommandLineOption shortcutOption{QStringLiteral("shortcut"),
                                            QStringLiteral("Open what the shortcut <type> names."),
                                            QStringLiteral("type")};
    parser.addOptions({tourOption, shortcutOption});
    parser.addPositionalArgument(QStringLiteral("arguments"),
                                 QStringLiteral("Passed on, for example ui_test."),
                                 QStringLiteral("[arguments...]"));
    parser.process(toolkit);

    const Translations translations{QLocale::system().uiLanguages()};
    registerInterface();
    if (parser.isSet(tourOption)) {
        return runTour(toUtf8(parser.value(tourOption)), shareFolder());
    }

    ApplicationOptions options;
    options.folders = StandardFolders::fromEnvironment();
    options.shareFolder = shareFolder();
    for (const auto& argument : parser.positionalArguments()) {
        options.launchArguments.push_back(toUtf8(argument));
    }
    if (parser.isSet(shortcutOption)) {
        options.shortcut = toUtf8(parser.value(shortcutOption));
    }
    Application application{options};
    application.installCrashHandler();
    if (!application.show()) {
        std::cerr << "lumora: the window could not be built\n";
        return 1;
    }
    const int status = QGuiApplication::exec();
    application.enterBackground();
    return status;
}
