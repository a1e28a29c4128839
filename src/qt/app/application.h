// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/app_delegate.h"
#include "app/main_storyboard.h"
#include "platform/base/notification_center.h"
#include "platform/records/crash_report_log.h"
#include "platform/records/local_analytics.h"
#include "platform/screens/services.h"
#include "platform/storage/file_settings_store.h"
#include "qt/app/window_appearance.h"
#include "qt/base/standard_folders.h"
#include "qt/desktop/desktop.h"
#include "qt/desktop/desktop_mail.h"
#include "qt/desktop/desktop_review_prompter.h"
#include "qt/desktop/desktop_url_opener.h"
#include "qt/desktop/on_screen_keyboard.h"
#include "qt/desktop/running_instance.h"
#include "qt/desktop/settings_portal.h"
#include "qt/machine/pulse_audio_session.h"
#include "qt/machine/qt_bundle.h"
#include "qt/machine/qt_clock.h"
#include "qt/machine/qt_device.h"
#include "qt/machine/qt_java_script_context.h"
#include "qt/models/qt_view_factory.h"
#include "qt/screens/qt_presenter.h"
#include "qt/screens/split_screen.h"
#include "qt/share/qt_file_chooser.h"
#include "qt/share/qt_share_sheet.h"
#include "qt/speech/qt_speech.h"

#include <QQmlApplicationEngine>
#include <QSize>

#include <memory>
#include <optional>
#include <string>
#include <vector>

class QQuickWindow;

namespace lumora::qt {

struct ApplicationOptions {
    StandardFolders folders;
    std::filesystem::path shareFolder;
    std::vector<std::string> launchArguments;
    std::optional<std::string> shortcut;
    /// Links to open after the launch, not yet checked.
    std::vector<std::string> links;
    Desktop desktop;
    /// As the last time, or what suits the screen, when it is not given; only
    /// then is it remembered.
    std::optional<QSize> windowSize;
};

/// The whole program but its entry point: every platform object, the logic
/// above them and the window, in the order in which they need each other.
class Application final : public QObject {
    Q_OBJECT

public:
    explicit Application(ApplicationOptions options);
    ~Application() override;

    /// Opens the window with nothing but its colours and launches as soon as
    /// they are on screen. False when the window could not be built; why is on
    /// stderr.
    bool show();
    /// Launches now: the database is prepared and the screens are built. Only
    /// the first call does anything.
    void launch();
    bool isLaunched() const { return splitScreen_ != nullptr; }

    QQuickWindow* window() const { return window_; }
    SplitScreen& splitScreen() { return *splitScreen_; }
    QtPresenter& presenter() { return presenter_; }
    QtFileChooser& fileChooser() { return fileChooser_; }
    platform::SettingsStore& settings() { return settings_; }
    WindowAppearance& appearance() { return appearance_; }
    /// Comes to the front and does what is asked for, as soon as it can.
    void serve(const InstanceRequest& request);
    /// From now on a crash leaves a report. One application a process.
    void installCrashHandler() { crashReporter_.installCrashHandler(); }
    /// The program may be ended from now on: what is pending gets written.
    void enterBackground();

private:
    QSize openingSize();
    void rememberWindow();
    void applicationStateChanged(Qt::ApplicationState state);
    void raise(const QString& activationToken);
    void closeAllLayers();
    void open(const InstanceRequest& request);

    ApplicationOptions options_;
    platform::FileSettingsStore settings_;
    platform::FileSettingsStore viewMemory_;
    platform::CrashReportLog crashReporter_;
    QtClock clock_;
    platform::LocalAnalytics analytics_;
    QtBundle bundle_;
    QtDevice device_;
    platform::NotificationCenter notifications_;
    QtViewFactory views_;
    app::MainStoryboard storyboard_;
    WindowAppearance appearance_;
    QSize openingSize_;
    QtPresenter presenter_;
    QtSpeech speech_;
    PulseAudioSession audioSession_;
    QtJavaScriptContextFactory scripts_;
    DesktopMail mail_;
    DesktopUrlOpener urlOpener_;
    DesktopReviewPrompter reviewPrompter_{urlOpener_};
    QtFileChooser fileChooser_;
    QtShareSheet shareSheet_;
    SettingsPortal settingsPortal_;
    OnScreenKeyboard onScreenKeyboard_;
    platform::Services services_;
    app::AppDelegate delegate_;
    std::unique_ptr<SplitScreen> splitScreen_;
    std::vector<InstanceRequest> waiting_;
    QQmlApplicationEngine engine_;
    QQuickWindow* window_ = nullptr;
};

/// Makes the files that QML brings along known to the program. Before the
/// first engine, once.
void registerInterface();

} // namespace lumora::qt
