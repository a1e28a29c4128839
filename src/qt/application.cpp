// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/application.h"

#include "qt/color_conversion.h"
#include "qt/icon_provider.h"
#include "qt/text_conversion.h"

#include <QGuiApplication>
#include <QQmlContext>
#include <QQuickStyle>
#include <QQuickWindow>

#include <iostream>
#include <system_error>

// Written by the build: the module's types of this library.
extern void qml_register_types_Lumora();

namespace lumora::qt {

namespace {

constexpr platform::Color kAccentPrimary{11 / 255.0, 78 / 255.0, 162 / 255.0, 1};

/// Where the database goes; whether this works shows when it is opened.
std::filesystem::path madeFolder(const std::filesystem::path& folder)
{
    std::error_code error;
    if (std::filesystem::create_directories(folder, error)) {
        std::filesystem::permissions(folder, std::filesystem::perms::owner_all, error);
    }
    return folder;
}

} // namespace

void registerInterface()
{
    QQuickStyle::setStyle(QStringLiteral("Basic"));
    // Named, so that the linker takes the part of the library that registers
    // the types when QML first asks for the module.
    [[maybe_unused]] void (*volatile registration)() = &qml_register_types_Lumora;
}

Application::Application(const ApplicationOptions& options)
    : options_{options},
      settings_{options_.folders.config / "settings.json"},
      crashReporter_{options_.folders.state},
      analytics_{options_.folders.state, clock_},
      bundle_{options_.shareFolder},
      device_{options_.launchArguments},
      presenter_{storyboard_},
      services_{notifications_, settings_, bundle_, device_,    clock_,     crashReporter_,
                analytics_,     std::cout, views_,  presenter_, storyboard_},
      delegate_{services_,
                {madeFolder(options_.folders.data), options_.folders.data.string()},
                kAccentPrimary}
{
    storyboard_.setServices(services_);
    // Screens ask for the kind of device while they are built.
    device_.setWindowWidth(options_.windowSize.width());
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            &Application::applicationStateChanged);
}

Application::~Application() = default;

bool Application::show()
{
    const auto root = storyboard_.instantiateInitialViewController();
    delegate_.window.rootViewController = root;
    delegate_.didFinishLaunching({});
    splitScreen_ = std::make_unique<SplitScreen>(root, device_);
    QQmlEngine::setObjectOwnership(splitScreen_.get(), QQmlEngine::CppOwnership);
    splitScreen_->setWidth(options_.windowSize.width());
    // Only now is there a home screen to hear of a shortcut.
    if (options_.shortcut) {
        delegate_.performActionForShortcutItem({*options_.shortcut}, [](bool) {});
    }

    engine_.addImportPath(QStringLiteral("qrc:/"));
    engine_.addImageProvider(QStringLiteral("icon"), new IconProvider);
    engine_.setInitialProperties(
        {{QStringLiteral("split"), QVariant::fromValue(splitScreen_.get())},
         {QStringLiteral("presenter"), QVariant::fromValue(&presenter_)},
         {QStringLiteral("accent"), toQColor(delegate_.appearance().navigationBarBackground)},
         {QStringLiteral("width"), options_.windowSize.width()},
         {QStringLiteral("height"), options_.windowSize.height()}});
    engine_.load(QUrl{QStringLiteral("qrc:/Lumora/Main.qml")});
    if (engine_.rootObjects().isEmpty()) {
        return false;
    }
    window_ = qobject_cast<QQuickWindow*>(engine_.rootObjects().constFirst());
    return window_ != nullptr;
}

void Application::setDark(bool dark)
{
    if (window_ != nullptr) {
        window_->setProperty("dark", dark);
    }
}

void Application::applicationStateChanged(Qt::ApplicationState state)
{
    device_.setSceneActive(state == Qt::ApplicationActive);
    if (state != Qt::ApplicationActive) {
        enterBackground();
    }
}

void Application::enterBackground()
{
    if (const auto written = settings_.synchronize(); !written) {
        std::cerr << "Unable to write the settings: " << written.error().message << '\n';
    }
}

} // namespace lumora::qt
