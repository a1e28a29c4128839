// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/app/application.h"

#include "platform/files/atomic_file.h"
#include "qt/app/back_keys.h"
#include "qt/app/window_size.h"
#include "qt/base/text_conversion.h"
#include "qt/screens/icon_provider.h"
#include "settings/view_memory.h"

#include <QCursor>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QQmlContext>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QScreen>
#include <QThreadPool>
#include <QTimer>

#include <chrono>
#include <iostream>
#include <ranges>
#include <utility>

// Written by the build: the module's types of this library.
extern void qml_register_types_Lumora();

namespace lumora::qt {

namespace {

constexpr std::chrono::milliseconds kLongestWaitForAFrame{250};
constexpr platform::Color kAccentPrimary{11 / 255.0, 78 / 255.0, 162 / 255.0, 1};

/// Has the system's fonts looked through on another thread, which takes as long as
/// building the window and is needed by its first text only.
void prepareFonts()
{
    QThreadPool::globalInstance()->start([] { QFontDatabase::families(); });
}

} // namespace

void registerInterface()
{
    QQuickStyle::setStyle(QStringLiteral("Basic"));
    // Named, so that the linker takes the part of the library that registers
    // the types when QML first asks for the module.
    [[maybe_unused]] void (*volatile registration)() = &qml_register_types_Lumora;
}

Application::Application(ApplicationOptions options)
    : options_{std::move(options)},
      settings_{options_.folders.config / "settings.json"},
      viewMemory_{options_.folders.config / "view.json"},
      crashReporter_{options_.folders.state},
      analytics_{options_.folders.state, options_.folders.config, clock_},
      bundle_{options_.shareFolder},
      device_{options_.launchArguments},
      appearance_{kAccentPrimary},
      openingSize_{openingSize()},
      presenter_{storyboard_},
      mail_{options_.desktop},
      urlOpener_{options_.desktop},
      fileChooser_{presenter_, options_.desktop},
      shareSheet_{presenter_, mail_, fileChooser_, options_.desktop},
      settingsPortal_{options_.desktop.bus},
      onScreenKeyboard_{options_.desktop.bus},
      services_{notifications_,  settings_,  bundle_,       device_,      clock_,
                crashReporter_,  analytics_, std::cout,     views_,       presenter_,
                storyboard_,     speech_,    audioSession_, scripts_,     shareSheet_,
                reviewPrompter_, mail_,      urlOpener_,    fileChooser_, viewMemory_},
      delegate_{services_, {options_.folders.data, options_.folders.data.string()}, kAccentPrimary}
{
    prepareFonts();
    storyboard_.setServices(services_);
    // Whether it could be made shows when the database is opened.
    static_cast<void>(platform::makePrivateFolder(options_.folders.data));
    // Screens ask for the kind of device while they are built.
    device_.setWindowWidth(openingSize_.width());
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            &Application::applicationStateChanged);
    connect(&settingsPortal_, &SettingsPortal::appearanceChanged, this,
            [this] { appearance_.setDesktop(settingsPortal_.appearance()); });
}

Application::~Application() = default;

bool Application::show()
{
    engine_.addImportPath(QStringLiteral("qrc:/"));
    engine_.addImageProvider(QStringLiteral("icon"), new IconProvider);
    engine_.setInitialProperties({{QStringLiteral("presenter"), QVariant::fromValue(&presenter_)},
                                  {QStringLiteral("files"), QVariant::fromValue(&fileChooser_)},
                                  {QStringLiteral("share"), QVariant::fromValue(&shareSheet_)},
                                  {QStringLiteral("appearance"), QVariant::fromValue(&appearance_)},
                                  {QStringLiteral("width"), openingSize_.width()},
                                  {QStringLiteral("height"), openingSize_.height()}});
    engine_.load(QUrl{QStringLiteral("qrc:/Lumora/Main.qml")});
    if (engine_.rootObjects().isEmpty()) {
        return false;
    }
    window_ = qobject_cast<QQuickWindow*>(engine_.rootObjects().constFirst());
    if (window_ == nullptr) {
        return false;
    }
    // The answer came while the window was built, so the first frame has the right
    // colours.
    settingsPortal_.takeAnswer();
    if (!options_.windowSize && settings::ViewMemory{viewMemory_}.windowMaximized()) {
        window_->showMaximized();
    }
    shareSheet_.setWindow(window_);
    new BackKeys{window_};
    connect(window_, &QQuickWindow::frameSwapped, this, &Application::launch,
            static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
    // A window that starts out hidden draws no frame.
    QTimer::singleShot(kLongestWaitForAFrame, this, &Application::launch);
    return true;
}

void Application::launch()
{
    if (splitScreen_) {
        return;
    }
    const auto root = storyboard_.instantiateInitialViewController();
    delegate_.window.rootViewController = root;
    app::LaunchOptions launch;
    if (options_.shortcut) {
        launch.shortcutItem = app::ShortcutItem{*options_.shortcut};
    }
    device_.setWindowWidth(window_->width());
    delegate_.didFinishLaunching(launch);
    appearance_.setBars(delegate_.barColors());
    splitScreen_ =
        std::make_unique<SplitScreen>(root, device_, *presenter_.modals(), *presenter_.preview());
    QQmlEngine::setObjectOwnership(splitScreen_.get(), QQmlEngine::CppOwnership);
    splitScreen_->setWidth(window_->width());
    presenter_.setPanes(splitScreen_.get());
    for (const auto& link : options_.links) {
        delegate_.openLink(link);
    }
    for (const auto& request : std::exchange(waiting_, {})) {
        open(request);
    }
}

void Application::serve(const InstanceRequest& request)
{
    raise(request.activationToken);
    if (isLaunched()) {
        open(request);
    } else {
        waiting_.push_back(request);
    }
}

void Application::raise(const QString& activationToken)
{
    // Where the toolkit looks for it, on Wayland.
    constexpr const char* kTokenVariable = "XDG_ACTIVATION_TOKEN";
    if (window_ == nullptr) {
        return;
    }
    if (!activationToken.isEmpty()) {
        qputenv(kTokenVariable, activationToken.toUtf8());
    }
    window_->setWindowStates(window_->windowStates() & ~Qt::WindowMinimized);
    window_->raise();
    window_->requestActivate();
    // It is valid once, and not for programs started from here.
    qunsetenv(kTokenVariable);
}

void Application::closeAllLayers()
{
    // Questions first: their answers lead to screens that go next.
    presenter_.withdraw();
    shareSheet_.cancel();
    fileChooser_.dismiss();
    std::vector<Modal*> modals;
    for (const auto& modal : presenter_.modals()->modals()) {
        modals.push_back(modal.get());
    }
    // As the person would, so that a screen does what it does on closing.
    for (auto* modal : modals | std::views::reverse) {
        modal->close();
    }
}

void Application::open(const InstanceRequest& request)
{
    const auto type = toUtf8(request.shortcut.value_or(QString{}));
    // Beside a verb the search field is in sight: its shortcut does nothing.
    const bool leadsSomewhere =
        app::isKnownShortcut(type) &&
        (type != app::kSearchShortcut || splitScreen_->collapsed() || !request.links.isEmpty());
    if (leadsSomewhere || !request.links.isEmpty() || request.text || request.form) {
        closeAllLayers();
    }
    if (leadsSomewhere || request.text) {
        splitScreen_->backToHome();
    }
    if (request.shortcut) {
        delegate_.performActionForShortcutItem({type}, [](bool) {});
    }
    for (const auto& link : request.links) {
        delegate_.openLink(toUtf8(link));
    }
    if (request.text) {
        delegate_.lookUp(toUtf8(request.text->text), request.text->opens);
    }
    if (const auto& form = request.form) {
        delegate_.openForm(form->verb,
                           form->tense.isEmpty()
                               ? std::nullopt
                               : std::optional{data::FormPlace{toUtf8(form->tense), form->order}});
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
    rememberWindow();
}

QSize Application::openingSize()
{
    if (options_.windowSize) {
        return *options_.windowSize;
    }
    // Most desktops open a window on the screen with the pointer.
    const auto* pointed = QGuiApplication::screenAt(QCursor::pos());
    const auto* screen = pointed == nullptr ? QGuiApplication::primaryScreen() : pointed;
    const auto remembered = settings::ViewMemory{viewMemory_}.windowSize();
    return firstWindowSize(screen->availableSize(),
                           remembered ? std::optional{QSize{remembered->width, remembered->height}}
                                      : std::nullopt);
}

void Application::rememberWindow()
{
    if (window_ == nullptr || options_.windowSize) {
        return;
    }
    settings::ViewMemory memory{viewMemory_};
    const bool maximized = window_->windowStates() & (Qt::WindowMaximized | Qt::WindowFullScreen);
    // A maximized window goes back to the size that it had before.
    const auto size =
        maximized ? memory.windowSize()
                  : std::optional{settings::WindowSize{window_->width(), window_->height()}};
    if (const auto kept = memory.setWindow(size, maximized); !kept) {
        std::cerr << "Unable to remember the window: " << kept.error().message << '\n';
    }
}

} // namespace lumora::qt
