// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/main_storyboard.h"
#include "data/verb.h"
#include "platform/base/notification_center.h"
#include "platform/screens/services.h"
#include "platform/screens/table_view_controller.h"
#include "platform/storage/settings_store.h"
#include "support/fake_bundle.h"
#include "support/fake_clock.h"
#include "support/fake_device.h"
#include "support/fake_java_script_context.h"
#include "support/fake_presenter.h"
#include "support/fake_share_and_mail.h"
#include "support/fake_speech.h"
#include "support/fake_table_view.h"
#include "support/recording_analytics.h"
#include "support/recording_crash_reporter.h"
#include "support/statements.h"
#include "support/temporary_folder.h"

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

namespace lumora::detail {
class VerbDetailTableViewController;
}

namespace lumora::support {

/// Writes a database of six verbs with the tables of the shipped one.
void writeSmallDatabase(const std::filesystem::path& file);

std::vector<std::string> infinitives(const std::vector<data::VerbPtr>& verbs);

/// Keeps settings in memory only, and counts how often they were to be written.
class FlushedSettingsStore final : public platform::SettingsStore {
public:
    platform::Result<void> synchronize() override
    {
        ++flushes;
        return {};
    }

    int flushes = 0;
};

/// A machine with a small database on it, the real storyboard and notification
/// centre, and fakes of the rest.
class World {
public:
    World();
    ~World();

    const platform::Services& services() const { return *services_; }
    /// The scripts of the screens made from now on run in another engine.
    void setScriptEngine(platform::JavaScriptContextFactory& engine);

    /// A screen on the database, as it is before it appears.
    template <typename Screen>
    std::shared_ptr<Screen> load()
    {
        auto screen = std::make_shared<Screen>(services());
        screen->queue = queue.get();
        screen->loadViewIfNeeded();
        return screen;
    }

    void execute(const std::string& sql) const;
    /// Rows of "TABLE" or "TABLE WHERE …".
    int count(const std::string& tableAndCondition) const;
    /// The verb of an id, as a list would have read it.
    data::VerbPtr verb(std::int64_t id) const;
    FakeTableView& table(platform::TableViewController& controller);
    /// The detail screen that the last step led to; null when it led elsewhere.
    std::shared_ptr<detail::VerbDetailTableViewController> shownDetail() const;

    TemporaryFolder folder;
    platform::NotificationCenter notifications;
    /// How often each notification was posted.
    std::map<std::string, int> posted;
    FlushedSettingsStore settings;
    FlushedSettingsStore viewMemory;
    FakeBundle bundle;
    FakeDevice device;
    FakeClock clock;
    RecordingCrashReporter crashReporter;
    RecordingAnalytics analytics;
    std::ostringstream console;
    FakeViewFactory views;
    app::MainStoryboard storyboard;
    FakePresenter presenter{&storyboard};
    FakeSpeechSynthesizerFactory speech;
    FakeAudioSession audioSession;
    FakeJavaScriptContextFactory scripts;
    FakeShareSheet shareSheet;
    FakeReviewPrompter reviewPrompter;
    FakeMailService mail;
    FakeUrlOpener urlOpener;
    FakeFileChooser fileChooser;
    std::unique_ptr<platform::DatabaseQueue> queue;

private:
    std::optional<platform::Services> services_;
    std::vector<platform::NotificationCenter::Subscription> subscriptions_;
};

} // namespace lumora::support
