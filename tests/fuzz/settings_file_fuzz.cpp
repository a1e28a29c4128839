// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "fuzz/fuzz.h"
#include "platform/storage/file_settings_store.h"
#include "settings/translation_language.h"
#include "support/fake_device.h"
#include "support/temporary_folder.h"

using namespace lumora;

/// Any bytes as the settings file: they are read, or put aside as they are; and
/// what was read can be saved and read again.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const support::TemporaryFolder folder;
    const fuzz::TimeLimit limit;
    const auto file = folder / "settings.json";
    const auto aside = folder / "settings.json.damaged";
    const auto bytes = fuzz::textOf(data, size);
    std::filesystem::remove(aside);
    support::writeContent(file, bytes);

    platform::SettingsStore::Values values;
    {
        platform::FileSettingsStore store{file};
        fuzz::require(support::contentOf(std::filesystem::exists(file) ? file : aside) == bytes,
                      "a damaged file is kept");
        for (const auto& [key, value] : store.values()) {
            store.boolForKey(key);
            store.integerForKey(key);
            store.floatForKey(key);
            store.stringForKey(key);
        }
        settings::effectiveTranslationLanguage(store, support::FakeDevice{});
        store.setValue(true, "changed");
        fuzz::require(store.synchronize().has_value(), "settings can be saved");
        values = store.values();
    }
    const platform::FileSettingsStore again{file};
    fuzz::require(again.values().size() == values.size(), "all that was saved is read");
    return 0;
}
