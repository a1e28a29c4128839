// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "backup/backup.h"
#include "platform/machine/file_chooser.h"

#include <filesystem>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>

namespace lumora::platform {
class Bundle;
class Clock;
class NotificationCenter;
class Presenter;
class ViewController;
} // namespace lumora::platform

namespace lumora::backup {

/// Offers to save favourites and history and to restore them, asks for the
/// file and says how it ended. GUI thread only. What the constructor takes must
/// outlive it; without a queue nothing can be done, and it says so.
///
/// Shared, so that an answer that comes after the screen has gone finds nothing to
/// call.
class BackupMenu final : public std::enable_shared_from_this<BackupMenu> {
public:
    BackupMenu(platform::ViewController& screen, platform::DatabaseQueue* queue,
               const platform::Bundle& bundle, const platform::Clock& clock,
               platform::Presenter& presenter, platform::FileChooser& fileChooser,
               platform::NotificationCenter& notifications, std::ostream& console);

    void show();

private:
    std::string text(std::string_view key) const;
    void choose(platform::FileQuestion::Purpose purpose,
                void (BackupMenu::*then)(const std::filesystem::path&));
    void save(const std::filesystem::path& file);
    void restore(const std::filesystem::path& file);
    /// The lists and the open verb learn of it.
    void announce(const RestoredCounts& restored);
    void tell(std::string_view titleKey, std::string message);
    void tellFailure(std::string_view titleKey, const Failure& failure);

    platform::ViewController& screen_;
    platform::DatabaseQueue* queue_;
    const platform::Bundle& bundle_;
    const platform::Clock& clock_;
    platform::Presenter& presenter_;
    platform::FileChooser& fileChooser_;
    platform::NotificationCenter& notifications_;
    std::ostream& console_;
};

} // namespace lumora::backup
