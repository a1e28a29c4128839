// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "backup/backup_menu.h"

#include "data/news.h"
#include "platform/machine/bundle.h"
#include "platform/machine/clock.h"
#include "platform/screens/presenter.h"
#include "text/text.h"

#include <ostream>
#include <utility>

namespace lumora::backup {

namespace {

const char* explanationKey(Problem problem)
{
    switch (problem) {
    case Problem::FileNotWritten:
        return "backup.problem.write";
    case Problem::FileNotRead:
        return "backup.problem.read";
    case Problem::NotABackup:
        return "backup.problem.foreign";
    case Problem::FromNewerVersion:
        return "backup.problem.newer";
    case Problem::Database:
        break;
    }
    return "backup.problem.database";
}

/// The menu's button is in the bar, above all rows.
constexpr platform::IndexPath kNoRow{-1, -1};

} // namespace

BackupMenu::BackupMenu(platform::ViewController& screen, platform::DatabaseQueue* queue,
                       const platform::Bundle& bundle, const platform::Clock& clock,
                       platform::Presenter& presenter, platform::FileChooser& fileChooser,
                       platform::NotificationCenter& notifications, std::ostream& console)
    : screen_{screen},
      queue_{queue},
      bundle_{bundle},
      clock_{clock},
      presenter_{presenter},
      fileChooser_{fileChooser},
      notifications_{notifications},
      console_{console}
{}

std::string BackupMenu::text(std::string_view key) const
{
    return localizedString(bundle_, key);
}

void BackupMenu::show()
{
    using Purpose = platform::FileQuestion::Purpose;
    const auto asking = [this](Purpose purpose,
                               void (BackupMenu::*then)(const std::filesystem::path&)) {
        return [weak = weak_from_this(), purpose, then] {
            if (const auto self = weak.lock()) {
                self->choose(purpose, then);
            }
        };
    };
    presenter_.presentActionSheet(
        screen_,
        {std::nullopt,
         {{text("backup.save"), platform::ActionStyle::Normal,
           asking(Purpose::Save, &BackupMenu::save)},
          {text("backup.restore"), platform::ActionStyle::Normal,
           asking(Purpose::Open, &BackupMenu::restore)},
          {text("export.cancel"), platform::ActionStyle::Cancel, nullptr}}},
        kNoRow);
}

void BackupMenu::choose(platform::FileQuestion::Purpose purpose,
                        void (BackupMenu::*then)(const std::filesystem::path&))
{
    const auto kind = text("backup.kind");
    fileChooser_.choose({.purpose = purpose,
                         .title = kind,
                         .kind = kind,
                         .extension = "json",
                         .suggestedName = "lumora"},
                        [weak = weak_from_this(), then](const std::filesystem::path& file) {
                            if (const auto self = weak.lock()) {
                                (*self.*then)(file);
                            }
                        });
}

void BackupMenu::save(const std::filesystem::path& file)
{
    const auto saved = queue_ == nullptr ? tl::make_unexpected(Failure{})
                                         : saveBackup(*queue_, file, clock_.secondsSince1970());
    if (!saved) {
        tellFailure("backup.save.failed", saved.error());
        return;
    }
    tell("backup.save.done",
         text::formatted(text("backup.save.counts"), {saved->favourites, saved->history}));
}

void BackupMenu::restore(const std::filesystem::path& file)
{
    const auto restored = queue_ == nullptr
                              ? tl::make_unexpected(Failure{})
                              : restoreBackup(*queue_, file, clock_.secondsSince1970());
    if (!restored) {
        tellFailure("backup.restore.failed", restored.error());
        return;
    }
    announce(*restored);
    auto message =
        text::formatted(text("backup.restore.counts"),
                        {static_cast<int>(restored->favourites.size()), restored->history});
    if (restored->unknown > 0) {
        message += "\n" + text::formatted(text("backup.restore.unknown"), {restored->unknown});
    }
    tell("backup.restore.done", std::move(message));
}

void BackupMenu::announce(const RestoredCounts& restored)
{
    if (!restored.favourites.empty()) {
        data::post(notifications_, data::VerbFavouriteToggled{&screen_, {}, restored.favourites});
    }
    data::post(notifications_, data::RefreshHistory{});
}

void BackupMenu::tell(std::string_view titleKey, std::string message)
{
    presenter_.presentAlert(
        screen_, platform::notice(text(titleKey), std::move(message), text("common.ok")));
}

void BackupMenu::tellFailure(std::string_view titleKey, const Failure& failure)
{
    if (!failure.detail.empty()) {
        console_ << failure.detail << std::endl;
    }
    tell(titleKey, text(explanationKey(failure.problem)));
}

} // namespace lumora::backup
