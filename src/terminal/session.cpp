// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "terminal/session.h"

#include "settings/default_settings.h"
#include "settings/setting_keys.h"
#include "terminal/arguments.h"

#include <cerrno>

namespace lumora::terminal {

Session::Session(const std::filesystem::path& shareFolder)
    : bundle_{shareFolder},
      device_{{}},
      services_{notifications_, settings_,       bundle_,      device_,
                clock_,         reportedErrors_, analytics_,   reportedErrors_.console(),
                views_,         presenter_,      storyboard_,  speech_,
                audioSession_,  scripts_,        shareSheet_,  reviewPrompter_,
                mail_,          urlOpener_,      fileChooser_, viewMemory_}
{
    storyboard_.setServices(services_);
    settings::seedDefaultSettings(settings_);
    // The command shows a verb on no screen, so it is no view for the history.
    settings_.setValue(false, settings::kUseHistory);
}

void Session::configure(const Arguments& arguments)
{
    settings_.setValue(std::string{arguments.anywhere ? "W" : "S"}, settings::kSearchFrom);
    settings_.setValue(arguments.conjugations, settings::kIncludeConjugations);
    settings_.setValue(arguments.translations, settings::kIncludeEnglish);
    if (arguments.language) {
        settings_.setValue(*arguments.language, settings::kTranslationLanguage);
    }
}

platform::Result<void> Session::openDatabase()
{
    const auto file = bundle_.pathForResource("verbs", "db");
    if (file) {
        // Immutable, so that neither a lock nor a journal is wanted beside it.
        queue_ = platform::DatabaseQueue::open(platform::fileUrl(*file) + "?mode=ro&immutable=1");
    }
    if (!queue_) {
        return tl::unexpected(
            platform::Error{"the verb database is missing or cannot be read", ENOENT});
    }
    return {};
}

platform::Result<void> Session::check() const
{
    if (const auto line = reportedErrors_.line()) {
        return tl::unexpected(platform::Error{*line, EIO});
    }
    return {};
}

} // namespace lumora::terminal
