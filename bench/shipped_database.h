// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/main_storyboard.h"
#include "platform/database_queue.h"
#include "platform/notification_center.h"
#include "platform/services.h"
#include "platform/settings_store.h"
#include "support/fake_audio_session.h"
#include "support/fake_bundle.h"
#include "support/fake_clock.h"
#include "support/fake_device.h"
#include "support/fake_java_script_context.h"
#include "support/fake_presenter.h"
#include "support/fake_speech_synthesizer.h"
#include "support/fake_table_view.h"
#include "support/fake_ways_out.h"
#include "support/recording_analytics.h"
#include "support/recording_crash_reporter.h"
#include "support/temporary_folder.h"

#include <filesystem>
#include <memory>
#include <sstream>

namespace lumora::bench {

/// A copy of the shipped database, with the logic's services around it and no
/// view to draw.
class ShippedDatabase {
public:
    ShippedDatabase();

    platform::Services services();
    std::filesystem::path file() const { return folder_ / "verbs.db"; }

    std::unique_ptr<platform::DatabaseQueue> queue;
    platform::MemorySettingsStore settings;
    platform::NotificationCenter notifications;

private:
    support::TemporaryFolder folder_;
    support::FakeBundle bundle_;
    support::FakeDevice device_;
    support::FakeClock clock_;
    support::RecordingCrashReporter crashReporter_;
    support::RecordingAnalytics analytics_;
    std::ostringstream console_;
    support::FakeViewFactory views_;
    app::MainStoryboard storyboard_;
    support::FakePresenter presenter_{&storyboard_};
    support::FakeSpeechSynthesizerFactory speech_;
    support::FakeAudioSession audioSession_;
    support::FakeJavaScriptContextFactory scripts_;
    support::FakeShareSheet shareSheet_;
    support::FakeReviewPrompter reviewPrompter_;
    support::FakeMailService mail_;
    support::FakeUrlOpener urlOpener_;
};

} // namespace lumora::bench
