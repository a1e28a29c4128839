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
    EXPECT_TRUE(ViewMemory{store}.marksForms()) << "at the first start";
    ASSERT_TRUE(ViewMemory{store}.setMarksForms(false));
    FileSettingsStore read{file};
    EXPECT_FALSE(ViewMemory{read}.marksForms());
    EXPECT_EQ(ViewMemory{store}.cardOpen(), std::nullopt);
    for (const bool open : {false, true}) {
        ASSERT_TRUE(ViewMemory{store}.setCardOpen(open));
        FileSettingsStore again{file};
        EXPECT_EQ(ViewMemory{again}.cardOpen(), open);
    }
    support::writeContent(folder / "nowhere", "");
    FileSettingsStore lost{folder / "nowhere" / "view.json"};
    EXPECT_FALSE(ViewMemory{lost}.setVoice(Voice::Man));
}

TEST(ViewMemory, KeepsMoodAndWindow)
{
    const support::TemporaryFolder folder;
    const auto file = folder / "view.json";
    FileSettingsStore store{file};
    ViewMemory memory{store};
    EXPECT_EQ(memory.mood(), 0);
    EXPECT_EQ(memory.windowSize(), std::nullopt);
    ASSERT_TRUE(memory.setMood(3) && memory.setWindow(WindowSize{800, 600}, true));
    ASSERT_TRUE(memory.setWindow(std::nullopt, true)) << "maximized from the start";
    FileSettingsStore read{file};
    EXPECT_EQ(ViewMemory{read}.mood(), 3);
    EXPECT_EQ(ViewMemory{read}.windowSize(), (WindowSize{800, 600}));
    EXPECT_TRUE(ViewMemory{read}.windowMaximized());
    for (const char* content :
         {R"({"mood": 4, "window_width": 800})", R"({"mood": -1, "window_width": 0,
            "window_height": 5})",
          R"({"mood": "x", "window_width": 100000, "window_height": 600})"}) {
        support::writeContent(file, content);
        FileSettingsStore odd{file};
        EXPECT_EQ(ViewMemory{odd}.mood(), 0) << content;
        EXPECT_EQ(ViewMemory{odd}.windowSize(), std::nullopt) << content;
    }
}

TEST(ViewMemory, KeepsWhatTheListIsNarrowedTo)
{
    using Chip = ViewMemory::Chip;
    const support::TemporaryFolder folder;
    const auto file = folder / "view.json";
    FileSettingsStore store{file};
    ASSERT_TRUE(ViewMemory{store}.setChip(Chip::Irregular, true));
    FileSettingsStore read{file};
    EXPECT_TRUE(ViewMemory{read}.chip(Chip::Irregular));
    EXPECT_FALSE(ViewMemory{read}.chip(Chip::Common));
    support::writeContent(file, R"({"common": 1, "irregular": "yes"})");
    FileSettingsStore other{file};
    EXPECT_FALSE(ViewMemory{other}.chip(Chip::Irregular) || ViewMemory{other}.chip(Chip::Common));
}

TEST(ViewMemory, ReadsWhatIsUnknownAsAtTheFirstStart)
{
    const support::TemporaryFolder folder;
    const auto file = folder / "view.json";
    for (const char* content :
         {"", "[]", R"({"voice": "child"})", R"({"voice": 1, "marks": "no"})"}) {
        support::writeContent(file, content);
        FileSettingsStore store{file};
        EXPECT_EQ(ViewMemory{store}.voice(), Voice::Woman) << content;
        EXPECT_TRUE(ViewMemory{store}.marksForms()) << content;
    }
    support::writeContent(file, R"({"voice": "man", "of a later version": 3})");
    FileSettingsStore store{file};
    EXPECT_EQ(ViewMemory{store}.voice(), Voice::Man);
    ASSERT_TRUE(ViewMemory{store}.setVoice(Voice::Woman));
    EXPECT_EQ(FileSettingsStore{file}.integerForKey("of a later version"), 3);
}

} // namespace
} // namespace lumora::settings
