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
#include "web/conjugation_table.h"
#include "web/content_source.h"
#include "web/helper_filling.h"
#include "web/outbox.h"
#include "web/web_machine.h"
#include "web/web_mail.h"
#include "web/web_panes.h"
#include "web/web_presenter.h"
#include "web/web_speech.h"
#include "web/web_views.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace lumora::web {

/// Where the worker keeps what, in its own file system.
struct WebFolders {
    /// Resources, and the tables that the verbs are made from.
    std::filesystem::path share;
    /// Lost at the end.
    std::filesystem::path temporary;
    /// The person's: database, settings, records.
    std::filesystem::path data;
    std::filesystem::path config;
    std::filesystem::path state;
};

/// The whole program in a worker but for the worker itself: every platform object,
/// the logic above them, and the handling of the page's events. One thread.
class WebApplication {
public:
    /// `facts`: as WebDevice takes them.
    WebApplication(WebFolders folders, const Json& facts, ScriptEngine& scripts);
    ~WebApplication();

    /// Opens the database, which a first start makes, and builds the screens.
    void launch();
    /// Does what the event asks for. The answer has what the page must know: "state",
    /// "todo", and "reply" where the event is a question.
    Json handle(const Json& event);
    /// Does a little of what a first start has put off; false when nothing is left.
    bool prepareMore();
    /// The person's rows, as a rescue file holds them, for a browser whose files are
    /// in memory only.
    std::string userRows() const;

private:
    std::filesystem::path makeDatabase();
    Json dispatch(std::string_view kind, const Json& event);
    bool handleTable(std::string_view kind, const Json& event, Json& reply) const;
    bool handleHome(std::string_view kind, const Json& event) const;
    bool handleVerb(std::string_view kind, const Json& event, Json& reply) const;
    bool handleQuestion(std::string_view kind, const Json& event, Json& reply);
    void handleMachine(std::string_view kind, const Json& event);
    void press(int screen, const std::string& identifier) const;
    void triggerPreview(int action);
    Json previewState() const;
    Json state() const;
    void helpersAreDone();
    navigation::HomeViewController* home() const;

    WebFolders folders_;
    Outbox outbox_;
    ContentSource content_;
    ConjugationTable conjugations_{content_};
    platform::FileSettingsStore settings_;
    platform::FileSettingsStore viewMemory_;
    platform::CrashReportLog crashReporter_;
    WebClock clock_{outbox_};
    platform::LocalAnalytics analytics_;
    WebBundle bundle_;
    WebDevice device_;
    platform::NotificationCenter notifications_;
    WebViewFactory views_{outbox_};
    app::MainStoryboard storyboard_;
    WebPresenter presenter_;
    WebSpeech speech_{outbox_};
    WebAudioSession audioSession_;
    WebScripts scripts_;
    WebMail mail_{outbox_, clock_};
    WebUrlOpener urlOpener_{outbox_};
    WebReviewPrompter reviewPrompter_;
    WebFileChooser fileChooser_;
    WebShareSheet shareSheet_{outbox_};
    platform::Services services_;
    app::AppDelegate delegate_;
    std::optional<HelperFilling> helpers_;
    std::unique_ptr<WebPanes> panes_;
    /// Timers that became due while helper tables were being filled.
    std::vector<int> due_;
};

} // namespace lumora::web
