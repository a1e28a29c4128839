// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "web/web_application.h"

#include "app/database_preparation.h"
#include "app/rescue_file.h"
#include "lists/search_results_table_view_controller.h"
#include "lists/verb_list_table_view_controller.h"
#include "navigation/home_view_controller.h"
#include "platform/files/atomic_file.h"
#include "verbdb/database_writer.h"

#include <exception>
#include <iostream>
#include <utility>

namespace lumora::web {

namespace {

constexpr platform::Color kAccentPrimary{11 / 255.0, 78 / 255.0, 162 / 255.0, 1};

} // namespace

WebApplication::WebApplication(WebFolders folders, const Json& facts, ScriptEngine& scripts)
    : folders_{std::move(folders)},
      content_{folders_.share},
      settings_{folders_.config / "settings.json"},
      viewMemory_{folders_.config / "view.json"},
      crashReporter_{folders_.state},
      analytics_{folders_.state, folders_.config, clock_},
      bundle_{folders_.share, [this] { return makeDatabase(); }},
      device_{facts},
      presenter_{storyboard_,
                 [this] {
                     if (panes_) {
                         panes_->synchronize();
                     }
                 }},
      scripts_{scripts},
      fileChooser_{outbox_, folders_.temporary},
      services_{notifications_,  settings_,  bundle_,       device_,      clock_,
                crashReporter_,  analytics_, std::cout,     views_,       presenter_,
                storyboard_,     speech_,    audioSession_, scripts_,     shareSheet_,
                reviewPrompter_, mail_,      urlOpener_,    fileChooser_, viewMemory_},
      delegate_{services_, {folders_.data, folders_.data.string()}, kAccentPrimary}
{
    storyboard_.setServices(services_);
    static_cast<void>(platform::makePrivateFolder(folders_.data));
    static_cast<void>(platform::makePrivateFolder(folders_.temporary));
}

WebApplication::~WebApplication() = default;

std::filesystem::path WebApplication::makeDatabase()
{
    const auto* content = content_.get();
    auto file = folders_.temporary / "verbs.db";
    try {
        if (content != nullptr) {
            verbdb::writeDatabaseWithoutForms(*content, file);
            return file;
        }
    } catch (const std::exception& error) {
        std::cerr << "lumora: " << error.what() << '\n';
    }
    return {};
}

void WebApplication::launch()
{
    const auto root = storyboard_.instantiateInitialViewController();
    delegate_.window.rootViewController = root;
    delegate_.didFinishLaunching({});
    // The copy is in its place.
    static_cast<void>(platform::removeDurably(folders_.temporary / "verbs.db"));
    helpers_.emplace(content_, delegate_.queue.get(), crashReporter_);
    panes_ = std::make_unique<WebPanes>(root, presenter_);
    panes_->setWidth(device_.isTablet() ? platform::kTwoPaneWidth : 0);
}

Json WebApplication::handle(const Json& event)
{
    const auto kind = event.value("event", "");
    Json answer = Json::object();
    if (auto reply = dispatch(kind, event); !reply.is_null()) {
        answer["reply"] = std::move(reply);
    }
    // Rows that are asked for change nothing.
    if (kind != "rows" && panes_) {
        // Inside a screen others may have come and gone.
        panes_->synchronize();
        answer["state"] = state();
    }
    answer["todo"] = outbox_.take();
    return answer;
}

Json WebApplication::state() const
{
    auto state = panes_->describe();
    state["question"] = presenter_.question();
    state["preview"] = previewState();
    return state;
}

bool WebApplication::prepareMore()
{
    if (helpers_ && !helpers_->isDone()) {
        helpers_->step();
        if (!helpers_->isDone()) {
            return true;
        }
        helpersAreDone();
    }
    // A later start reads the tables before the first verb is opened, and the forms
    // before the first key.
    static_cast<void>(content_.get());
    if (auto* lists = home(); lists != nullptr && lists->searchResultsController()) {
        lists->searchResultsController()->prepare();
    }
    return false;
}

void WebApplication::helpersAreDone()
{
    // What narrows the list is known only now.
    if (auto* lists = home(); lists != nullptr && lists->verbList().filter().isAnyChosen()) {
        lists->verbList().reloadVerbs();
    }
    for (const int timer : std::exchange(due_, {})) {
        clock_.fire(timer);
    }
}

std::string WebApplication::userRows() const
{
    const auto file = folders_.temporary / "rows.json";
    app::UserData rows;
    bool read = false;
    if (delegate_.queue) {
        delegate_.queue->inDatabase(
            [&](platform::Database& database) { read = app::readUserRows(database, rows); });
    }
    return read && app::RescueFile{file}.write(rows) ? platform::readFile(file).value_or("")
                                                     : std::string{};
}

} // namespace lumora::web
