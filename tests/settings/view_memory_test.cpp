// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "settings/view_memory.h"

#include "platform/storage/file_settings_store.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace lumora::settings {
namespace {

using platform::FileSettingsStore;
using platform::Voice;

TEST(ViewMemory, KeepsWhatWasChosenInItsFileAtOnce)
{
    const support::TemporaryFolder folder;
    const auto file = folder / "config" / "view.json";
    FileSettingsStore store{file};
    EXPECT_EQ(ViewMemory{store}.voice(), Voice::Woman) << "at the first start";
    for (const auto voice : {Voice::Man, Voice::Woman, Voice::Man}) {
        ASSERT_TRUE(ViewMemory{store}.setVoice(voice));
        FileSettingsStore read{file};
        EXPECT_EQ(ViewMemory{read}.voice(), voice);
    }
    EXPECT_EQ(ViewMemory{store}.cardOpen(), std::nullopt);
    for (const bool open : {false, true}) {
        ASSERT_TRUE(ViewMemory{store}.setCardOpen(open));
        FileSettingsStore read{file};
        EXPECT_EQ(ViewMemory{read}.cardOpen(), open);
    }
    support::writeContent(folder / "nowhere", "");
    FileSettingsStore lost{folder / "nowhere" / "view.json"};
    EXPECT_FALSE(ViewMemory{lost}.setVoice(Voice::Man));
}

TEST(ViewMemory, ReadsWhatIsUnknownAsAtTheFirstStart)
{
    const support::TemporaryFolder folder;
    const auto file = folder / "view.json";
    for (const char* content : {"", "[]", R"({"voice": "child"})", R"({"voice": 1})"}) {
        support::writeContent(file, content);
        FileSettingsStore store{file};
        EXPECT_EQ(ViewMemory{store}.voice(), Voice::Woman) << content;
    }
    support::writeContent(file, R"({"voice": "man", "of a later version": 3})");
    FileSettingsStore store{file};
    EXPECT_EQ(ViewMemory{store}.voice(), Voice::Man);
    ASSERT_TRUE(ViewMemory{store}.setVoice(Voice::Woman));
    EXPECT_EQ(FileSettingsStore{file}.integerForKey("of a later version"), 3);
}

} // namespace
} // namespace lumora::settings
