// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/old_settings_file.h"
#include "fuzz/fuzz.h"
#include "platform/storage/settings_store.h"
#include "support/recording_crash_reporter.h"
#include "support/temporary_folder.h"

using namespace lumora;

/// Any bytes as the old settings file: at most its four keys are carried over,
/// in their kinds, and the file goes.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const support::TemporaryFolder folder;
    const fuzz::TimeLimit limit;
    const auto file = folder / "lumora.plist";
    support::writeContent(file, fuzz::textOf(data, size));
    platform::MemorySettingsStore settings;
    support::RecordingCrashReporter crashReporter;

    app::carryOverOldSettings(folder.path().string(), settings, crashReporter);

    fuzz::require(!std::filesystem::exists(file), "the file goes");
    for (const auto& [key, value] : settings.values()) {
        const bool text = std::holds_alternative<std::string>(value);
        fuzz::require(key == "SearchFrom" ? text : std::holds_alternative<bool>(value),
                      "a value of its kind");
    }
    fuzz::require(settings.values().size() <= 4, "four keys at most");
    return 0;
}
