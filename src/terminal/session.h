// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/main_storyboard.h"
#include "platform/base/error.h"
#include "platform/base/notification_center.h"
#include "platform/screens/services.h"
#include "platform/storage/database_queue.h"
#include "platform/storage/settings_store.h"
#include "qt/machine/qt_bundle.h"
#include "qt/machine/qt_clock.h"
#include "qt/machine/qt_device.h"
#include "qt/machine/qt_java_script_context.h"
#include "terminal/null_services.h"
#include "terminal/reported_errors.h"
#include "terminal/terminal_views.h"

#include <filesystem>
#include <memory>

namespace lumora::terminal {

struct Arguments;

/// The machine as the logic sees it for one command: the shipped database, read
/// only, and settings in memory. Nothing of the application's is changed but by
/// the command that restores a backup.
class Session {
public:
    explicit Session(const std::filesystem::path& shareFolder);

    /// Sets what the command's options say.
    void configure(const Arguments& arguments);
    platform::Result<void> openDatabase();

    const platform::Services& services() const { return services_; }
    platform::DatabaseQueue& queue() { return *queue_; }
    /// An error once the logic has reported one.
    platform::Result<void> check() const;

private:
    platform::NotificationCenter notifications_;
    platform::MemorySettingsStore settings_;
    platform::MemorySettingsStore viewMemory_;
    qt::QtBundle bundle_;
    qt::QtDevice device_;
    qt::QtClock clock_;
    ReportedErrors reportedErrors_;
    NullAnalytics analytics_;
    TerminalViewFactory views_;
    NullPresenter presenter_;
    app::MainStoryboard storyboard_;
    NullSpeech speech_;
    NullAudioSession audioSession_;
    qt::QtJavaScriptContextFactory scripts_;
    NullShareSheet shareSheet_;
    NullReviewPrompter reviewPrompter_;
    NullMailService mail_;
    NullUrlOpener urlOpener_;
    NullFileChooser fileChooser_;
    platform::Services services_;
    std::unique_ptr<platform::DatabaseQueue> queue_;
};

} // namespace lumora::terminal
