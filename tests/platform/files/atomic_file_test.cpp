// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/files/atomic_file.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstddef>
#include <iterator>

namespace lumora::platform {

namespace {

using support::contentOf;
using support::TemporaryFolder;
using support::writeContent;

std::ptrdiff_t filesIn(const std::filesystem::path& folder)
{
    return std::distance(std::filesystem::directory_iterator(folder), {});
}

std::filesystem::perms permissionsOf(const std::filesystem::path& file)
{
    return std::filesystem::status(file).permissions();
}

constexpr auto kOwnerOnly =
    std::filesystem::perms::owner_read | std::filesystem::perms::owner_write;

} // namespace

TEST(AtomicFile, ReplacesTheWholeContentAndLeavesNothingBeside)
{
    const TemporaryFolder folder;
    const auto file = folder / "settings.json";
    writeContent(file, "an old content that is longer");
    const std::string content("new\0\xff", 5);

    ASSERT_TRUE(writeFileAtomically(file, content));

    EXPECT_EQ(contentOf(file), content);
    EXPECT_EQ(permissionsOf(file), kOwnerOnly);
    EXPECT_EQ(filesIn(folder.path()), 1);
}

TEST(AtomicFile, CopiesOverALeftoverAndRemovesACopyThatFailed)
{
    const TemporaryFolder folder;
    const std::string large(300'000, 'x'); // several read pieces
    writeContent(folder / "from", large);
    writeContent(folder / "copy", std::string(400'000, 'y'));

    ASSERT_TRUE(copyFileDurably(folder / "from", folder / "copy"));
    EXPECT_EQ(contentOf(folder / "copy"), large);
    ASSERT_TRUE(renameDurably(folder / "copy", folder / "to"));
    EXPECT_EQ(contentOf(folder / "to"), large);
    EXPECT_EQ(copyFileDurably(folder / "missing", folder / "copy").error().code, ENOENT);
    // A folder opens like a file and fails at the first read.
    EXPECT_EQ(copyFileDurably(folder.path(), folder / "copy").error().code, EISDIR);
    EXPECT_FALSE(std::filesystem::exists(folder / "copy"));
}

TEST(AtomicFile, ReadsUpToTheLimitAndNoFurther)
{
    const TemporaryFolder folder;
    writeContent(folder / "file", "12345");

    EXPECT_EQ(readFile(folder / "file", 5), "12345");
    EXPECT_EQ(readFile(folder / "file", 4).error().code, EFBIG);
    EXPECT_EQ(readFile(folder / "none").error().code, ENOENT);
    EXPECT_EQ(readFile(folder.path()).error().code, EISDIR);
}

TEST(AtomicFile, AppendingKeepsTheNewestWholeLinesBelowTheCap)
{
    const TemporaryFolder folder;
    const auto file = folder / "log";

    for (int line = 100; line < 200; ++line) {
        ASSERT_TRUE(appendLine(file, "line " + std::to_string(line), 100));
        ASSERT_LE(std::filesystem::file_size(file), 100U);
    }
    const std::string content = contentOf(file);

    EXPECT_TRUE(content.starts_with("line 1")) << content;
    EXPECT_TRUE(content.ends_with("line 198\nline 199\n")) << content;
    EXPECT_EQ(appendLine(file, std::string(50, 'x'), 100).error().code, EFBIG);
    EXPECT_EQ(contentOf(file), content);
    EXPECT_EQ(permissionsOf(file), kOwnerOnly);
}

TEST(AtomicFile, MakesFoldersForTheOwnerAlone)
{
    const TemporaryFolder folder;
    writeContent(folder / "plain", "");

    ASSERT_TRUE(makePrivateFolder(folder / "a/b/"));
    EXPECT_TRUE(makePrivateFolder(folder / "a/b"));
    EXPECT_EQ(permissionsOf(folder / "a"), std::filesystem::perms::owner_all);
    EXPECT_EQ(permissionsOf(folder / "a/b"), std::filesystem::perms::owner_all);
    EXPECT_EQ(makePrivateFolder(folder / "plain/c").error().code, ENOTDIR);
}

} // namespace lumora::platform
