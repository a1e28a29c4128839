// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "navigation/options_table_view_controller.h"

#include "backup/backup_menu.h"
#include "build_settings.h"
#include "data/news.h"
#include "export/support_email_sender.h"
#include "platform/machine/analytics.h"
#include "platform/machine/bundle.h"
#include "platform/machine/url_opener.h"
#include "platform/screens/navigation_controller.h"
#include "platform/screens/presenter.h"
#include "platform/storage/database_queue.h"
#include "platform/storage/settings_store.h"
#include "settings/search_from.h"
#include "settings/setting_keys.h"
#include "text/text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <ostream>
#include <utility>

namespace lumora::navigation {

namespace {

/// The rows from top to bottom, through all sections.
enum class Row {
    IncludeTranslation,
    SearchType,
    SortBy,
    IncludeConjugations,
    Descriptions,
    Translations,
    AudioSpeed,
    UseHistory,
    ClearHistory,
    Analytics
};

constexpr int kRowsOfSection[] = {4, 3, 2, 1};
constexpr int kHistoryLimit = 50;

std::optional<Row> rowAt(platform::IndexPath path)
{
    if (path.section < 0 || path.section >= static_cast<int>(std::size(kRowsOfSection)) ||
        path.row < 0 || path.row >= kRowsOfSection[path.section]) {
        return std::nullopt;
    }
    int row = path.row;
    for (int section = 0; section < path.section; ++section) {
        row += kRowsOfSection[section];
    }
    return static_cast<Row>(row);
}

struct SectionTitle {
    const char* key;
    const char* fallback;
};

constexpr SectionTitle kSectionTitles[] = {{"settings.search", "Search"},
                                           {"settings.conjugations", "Conjugations"},
                                           {"settings.history", "History"},
                                           {"settings.analytics", "Data Collection"}};

struct Language {
    std::string_view code;
    const char* nameKey;
};

/// In the order of the chooser.
constexpr Language kLanguages[] = {
    {"en", "settings.translations.english"}, {"nl", "settings.translations.dutch"},
    {"fr", "settings.translations.french"},  {"de", "settings.translations.german"},
    {"it", "settings.translations.italian"}, {"pt", "settings.translations.portuguese"},
    {"es", "settings.translations.spanish"},
};
/// Shown where it is stored, never offered.
constexpr Language kTurkish{"tr", "settings.translations.turkish"};

struct Speed {
    const char* title;
    platform::SettingValue factor;
};

bool isOn(const platform::SettingsStore& settings, std::string_view key, bool fallback)
{
    return platform::boolObjectForKey(settings, key).value_or(fallback);
}

} // namespace

OptionsTableViewController::OptionsTableViewController(const platform::Services& services)
    : TableViewController{services}, webUrl{build::kWebsiteUrl}
{}

OptionsTableViewController::~OptionsTableViewController() = default;

std::string OptionsTableViewController::text(std::string_view key) const
{
    return localizedString(services().bundle, key);
}

void OptionsTableViewController::viewDidLoad()
{
    auto item = navigationItem();
    item.title = text("settings");
    item.rightBarButtons = {{.identifier = "done",
                             .title = text("common.done"),
                             .image = {},
                             .enabled = true,
                             .action = [this] { close(); }}};
    item.leftBarButton = {
        {.identifier = "backup", .title = {}, .image = "more", .enabled = true, .action = [this] {
             showBackupMenu();
         }}};
    setNavigationItem(std::move(item));
    header.iconImageView = {"AboutIcon", 10, true, 1, platform::kLightTextColor};
    header.titleLabel = text("app.title");
    header.copyrightLabel = text("settings.copyright");
    header.openWebsiteButton = webUrl;
    header.emailSupportButton = text("support.email");
}

void OptionsTableViewController::viewWillAppear()
{
    fieldsChanged = false;
}

void OptionsTableViewController::viewDidAppear()
{
    services().analytics.logEvent("settings", {});
}

void OptionsTableViewController::close()
{
    if (delegate == nullptr) {
        return;
    }
    platform::ViewController* stack = navigationController();
    // This screen may be gone by then.
    services().presenter.dismiss(
        stack != nullptr ? *stack : *this,
        [home = delegate, changed = fieldsChanged] { home->optionsClosed(changed); });
}

void OptionsTableViewController::openWebsite()
{
    services().urlOpener.open(webUrl);
}

void OptionsTableViewController::sendSupportEmail()
{
    supportEmailSender = std::make_shared<exporting::SupportEmailSender>(services());
    supportEmailSender->sender = this;
    supportEmailSender->start();
}

void OptionsTableViewController::showBackupMenu()
{
    backupMenu = std::make_shared<backup::BackupMenu>(services(), *this, queue);
    backupMenu->show();
}

int OptionsTableViewController::numberOfSections()
{
    return static_cast<int>(std::size(kRowsOfSection));
}

int OptionsTableViewController::numberOfRowsInSection(int section)
{
    return section >= 0 && section < numberOfSections() ? kRowsOfSection[section] : 0;
}

std::optional<std::string> OptionsTableViewController::titleForHeaderInSection(int section)
{
    if (section < 0 || section >= numberOfSections()) {
        return std::nullopt;
    }
    const auto& [key, fallback] = kSectionTitles[section];
    return services().bundle.textForKey(key).value_or(fallback);
}

std::optional<std::string> OptionsTableViewController::titleForFooterInSection(int section)
{
    switch (section) {
    case 0:
        return text("settings.conjugations.info");
    case 2:
        return text::formatted(text("settings.history_info"), {kHistoryLimit});
    case 3:
        return text("settings.analytics.info");
    default:
        return std::nullopt;
    }
}

platform::TableCell OptionsTableViewController::switchCell(std::string label, bool on) const
{
    platform::TableCell cell;
    cell.reuseIdentifier = "SwitchCell";
    cell.text = std::move(label);
    cell.selectable = false;
    cell.control = platform::SwitchControl{on};
    return cell;
}

platform::TableCell OptionsTableViewController::segmentCell(std::string_view labelKey,
                                                            std::string_view firstKey,
                                                            std::string_view secondKey,
                                                            int selected) const
{
    platform::TableCell cell;
    cell.reuseIdentifier = "SegmentCell";
    cell.text = text(labelKey);
    cell.selectable = false;
    cell.control = platform::SegmentedControl{{text(firstKey), text(secondKey)}, selected};
    return cell;
}

platform::TableCell OptionsTableViewController::detailCell(std::string_view labelKey,
                                                           std::string detail) const
{
    platform::TableCell cell;
    cell.reuseIdentifier = "DetailCell";
    cell.text = text(labelKey);
    cell.detailText = std::move(detail);
    cell.accessory = platform::CellAccessory::DisclosureIndicator;
    return cell;
}

platform::TableCell OptionsTableViewController::cellForRow(platform::IndexPath path)
{
    const auto row = rowAt(path);
    if (!row) {
        return {};
    }
    const auto& settings = services().settings;
    switch (*row) {
    case Row::IncludeTranslation:
        // The stored choice, not the device's language.
        return switchCell(
            text::formatted(text("settings.includeenglish"),
                            {translationLanguageName("settings.translations.english")}),
            settings.boolForKey(settings::kIncludeEnglish));
    case Row::SearchType:
        return segmentCell("settings.search", "settings.searchtype.start",
                           "settings.searchtype.wildcard",
                           settings::searchesFromStart(settings) ? 0 : 1);
    case Row::SortBy:
        return segmentCell("settings.sortby", "settings.sortby.translated",
                           "settings.sortby.original",
                           isOn(settings, settings::kSortByLang, true) ? 1 : 0);
    case Row::IncludeConjugations:
        return switchCell(text("settings.includeconjugations"),
                          isOn(settings, settings::kIncludeConjugations, false));
    case Row::Descriptions:
        return segmentCell("settings.descriptions", "settings.descriptions.translated",
                           "settings.descriptions.original",
                           isOn(settings, settings::kShowTranslated, true) ? 1 : 0);
    case Row::Translations:
        return detailCell("settings.translations",
                          translationLanguageName("settings.translations.automatic"));
    case Row::AudioSpeed:
        return detailCell("settings.audio.speed", audioSpeedText());
    case Row::UseHistory:
        return switchCell(text("settings.history"), isOn(settings, settings::kUseHistory, true));
    case Row::ClearHistory:
        return detailCell("settings.history_clear", {});
    case Row::Analytics:
        return switchCell(text("settings.analytics"),
                          isOn(settings, settings::kAnalyticsCollectionEnabled, true));
    }
    return {};
}

std::string OptionsTableViewController::translationLanguageName(std::string_view fallbackKey) const
{
    const auto stored = services().settings.stringForKey(settings::kTranslationLanguage);
    if (stored == kTurkish.code) {
        return text(kTurkish.nameKey);
    }
    const auto* const found =
        std::find_if(std::begin(kLanguages), std::end(kLanguages),
                     [&](const Language& language) { return language.code == stored; });
    return text(found == std::end(kLanguages) ? fallbackKey : found->nameKey);
}

std::string OptionsTableViewController::audioSpeedText() const
{
    // A file edited by hand may hold any number.
    constexpr float kMostPercent = 1e9F;
    const float factor = services().settings.floatForKey(settings::kAudioSpeed);
    const float percent = factor > 0 ? std::min(factor * 100, kMostPercent) : 100;
    return std::to_string(static_cast<int>(percent)) + '%';
}

void OptionsTableViewController::switchToggled(platform::IndexPath path, bool on)
{
    auto& settings = services().settings;
    const auto row = rowAt(path);
    if (row == Row::IncludeTranslation) {
        settings.setValue(on, settings::kIncludeEnglish);
    } else if (row == Row::IncludeConjugations) {
        settings.setValue(on, settings::kIncludeConjugations);
    } else if (row == Row::UseHistory) {
        settings.setValue(on, settings::kUseHistory);
        data::post(services().notifications, data::HistoryFeatureToggled{on});
    } else if (row == Row::Analytics) {
        settings.setValue(on, settings::kAnalyticsCollectionEnabled);
        services().analytics.setAnalyticsCollectionEnabled(on);
    }
    flush();
    fieldsChanged = true;
}

void OptionsTableViewController::segmentChanged(platform::IndexPath path, int segment)
{
    auto& settings = services().settings;
    const auto row = rowAt(path);
    if (row == Row::SearchType) {
        settings.setValue(std::string{segment == 0 ? "S" : "W"}, settings::kSearchFrom);
    } else if (row == Row::SortBy) {
        settings.setValue(segment == 1, settings::kSortByLang);
    } else if (row == Row::Descriptions) {
        settings.setValue(segment == 1, settings::kShowTranslated);
    }
    flush();
    fieldsChanged = true;
}

void OptionsTableViewController::didSelectRow(platform::IndexPath path)
{
    // What it leads to lies over the screen and needs no mark under it.
    tableView().deselectRow(path);
    const auto row = rowAt(path);
    if (row == Row::Translations) {
        chooseTranslation(path);
    } else if (row == Row::AudioSpeed) {
        chooseAudioSpeed(path);
    } else if (row == Row::ClearHistory) {
        confirmClearingHistory(path);
    }
}

void OptionsTableViewController::chooseTranslation(platform::IndexPath path)
{
    platform::ActionSheet sheet;
    sheet.actions.push_back({.title = text("settings.translations.automatic"),
                             .style = platform::ActionStyle::Normal,
                             .handler = [this] {
                                 services().settings.removeValue(settings::kTranslationLanguage);
                                 chosen();
                             }});
    for (const auto& language : kLanguages) {
        sheet.actions.push_back({.title = text(language.nameKey),
                                 .style = platform::ActionStyle::Normal,
                                 .handler = [this, code = std::string{language.code}] {
                                     services().settings.setValue(code,
                                                                  settings::kTranslationLanguage);
                                     chosen();
                                 }});
    }
    sheet.actions.push_back({text("export.cancel"), platform::ActionStyle::Cancel, nullptr});
    services().presenter.presentActionSheet(*this, sheet, path);
}

void OptionsTableViewController::chooseAudioSpeed(platform::IndexPath path)
{
    const Speed speeds[] = {{"100%", std::int64_t{1}}, {"75%", 0.75}, {"50%", 0.5}, {"25%", 0.25}};
    platform::ActionSheet sheet;
    sheet.title = "Audio Speed";
    for (const auto& speed : speeds) {
        sheet.actions.push_back({.title = speed.title,
                                 .style = platform::ActionStyle::Normal,
                                 .handler = [this, factor = speed.factor] {
                                     services().settings.setValue(factor, settings::kAudioSpeed);
                                     chosen();
                                 }});
    }
    sheet.actions.push_back({text("export.cancel"), platform::ActionStyle::Cancel, nullptr});
    services().presenter.presentActionSheet(*this, sheet, path);
}

void OptionsTableViewController::confirmClearingHistory(platform::IndexPath path)
{
    services().presenter.presentActionSheet(
        *this,
        {text("settings.history_items_clear"),
         {{text("settings.history_clear_yes"), platform::ActionStyle::Normal,
           [this] { clearHistory(); }},
          {text("settings.history_cancel"), platform::ActionStyle::Cancel, nullptr}}},
        path);
}

void OptionsTableViewController::clearHistory()
{
    if (queue != nullptr) {
        queue->inDatabase([this](platform::Database& database) {
            if (!database.executeUpdate("DELETE FROM history", {})) {
                services().console << "Unable to delete favourites" << std::endl;
            }
            database.close();
        });
    }
    data::post(services().notifications, data::RefreshHistory{});
}

void OptionsTableViewController::flush()
{
    if (const auto written = services().settings.synchronize(); !written) {
        services().console << "Unable to write the settings: " << written.error().message
                           << std::endl;
    }
}

void OptionsTableViewController::chosen()
{
    flush();
    tableView().reloadData();
    fieldsChanged = true;
}

} // namespace lumora::navigation
