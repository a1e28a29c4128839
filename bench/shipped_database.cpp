// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shipped_database.h"

namespace lumora::bench {

ShippedDatabase::ShippedDatabase()
{
    std::filesystem::copy_file(LUMORA_SHARE_DIR "/verbs.db", file());
    queue = platform::DatabaseQueue::open(platform::fileUrl(file()));
    storyboard_.setServices(services());
}

platform::Services ShippedDatabase::services()
{
    return {notifications, settings, bundle_,     device_,         clock_,      crashReporter_,
            analytics_,    console_, views_,      presenter_,      storyboard_, speech_,
            audioSession_, scripts_, shareSheet_, reviewPrompter_, mail_,       urlOpener_};
}

} // namespace lumora::bench
