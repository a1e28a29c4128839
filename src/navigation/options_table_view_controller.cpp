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
#include "platform/screens/presenter.h"
#include "platform/storage/database_queue.h"
#include "platform/storage/settings_store.h"
#include "text/text.h"

#include <algorithm>
#include <cstddef>
#include <ostream>
#include <utility>

namespace lumora::navigation {

namespace {

constexpr int kHistoryLimit = 50;

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
    item.leftBarButton = {
        {.identifier = "backup", .title = {}, .image = "more", .enabled = true, .action = [this] {
             showBackupMenu();
         }}};
    setNavigationItem(std::move(item));
    addDoneButton([this] { close(); });
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
    if (delegate != nullptr) {
        dismiss([home = delegate, changed = fieldsChanged] { home->optionsClosed(changed); });
    }
}

void OptionsTableViewController::openWebsite()
{
    services().urlOpener.open(webUrl);
}

void OptionsTableViewController::sendSupportEmail()
{
    supportEmailSender = std::make_shared<exporting::SupportEmailSender>(
        services().bundle, services().device, services().mail, services().urlOpener,
        services().presenter);
    supportEmailSender->sender = this;
    supportEmailSender->start();
}

void OptionsTableViewController::showBackupMenu()
{
    backupMenu = std::make_shared<backup::BackupMenu>(
        *this, queue, services().bundle, services().clock, services().presenter,
        services().fileChooser, services().notifications, services().console);
    backupMenu->show();
}

int OptionsTableViewController::numberOfSections()
{
    return static_cast<int>(optionSections().size());
}

int OptionsTableViewController::numberOfRowsInSection(int section)
{
    const auto rows = optionRows();
    return static_cast<int>(std::count_if(
        rows.begin(), rows.end(), [&](const OptionRow& row) { return row.section == section; }));
}

std::optional<std::string> OptionsTableViewController::titleForHeaderInSection(int section)
{
    if (section < 0 || section >= numberOfSections()) {
        return std::nullopt;
    }
    const auto& shown = optionSections()[static_cast<std::size_t>(section)];
    return services().bundle.textForKey(shown.titleKey).value_or(shown.title);
}

std::optional<std::string> OptionsTableViewController::titleForFooterInSection(int section)
{
    if (section < 0 || section >= numberOfSections()) {
        return std::nullopt;
    }
    const auto& shown = optionSections()[static_cast<std::size_t>(section)];
    if (shown.footerKey.empty()) {
        return std::nullopt;
    }
    // Only the history's footer has a place for the number.
    return text::formatted(text(shown.footerKey), {kHistoryLimit});
}

std::string OptionsTableViewController::detailOf(const OptionRow& row) const
{
    return row.detail == nullptr ? std::string{}
                                 : row.detail(services().settings, services().bundle);
}

std::string OptionsTableViewController::labelOf(const OptionRow& row) const
{
    return row.kind == OptionRow::Kind::Switch && row.detail != nullptr
               ? text::formatted(text(row.labelKey), {detailOf(row)})
               : text(row.labelKey);
}

platform::TableCell OptionsTableViewController::cellForRow(platform::IndexPath path)
{
    platform::TableCell cell;
    const auto* row = optionRowAt(path);
    if (row == nullptr) {
        return cell;
    }
    const auto& settings = services().settings;
    cell.text = labelOf(*row);
    switch (row->kind) {
    case OptionRow::Kind::Switch:
        cell.reuseIdentifier = "SwitchCell";
        cell.selectable = false;
        cell.control = platform::SwitchControl{row->read(settings, row->key)};
        break;
    case OptionRow::Kind::Segments:
        cell.reuseIdentifier = "SegmentCell";
        cell.selectable = false;
        cell.control =
            platform::SegmentedControl{{text(row->segmentKeys[0]), text(row->segmentKeys[1])},
                                       row->read(settings, row->key) ? 1 : 0};
        break;
    case OptionRow::Kind::Detail:
        cell.reuseIdentifier = "DetailCell";
        cell.detailText = detailOf(*row);
        cell.accessory = platform::CellAccessory::DisclosureIndicator;
        break;
    }
    return cell;
}

void OptionsTableViewController::switchToggled(platform::IndexPath path, bool on)
{
    change(path, OptionRow::Kind::Switch, on);
}

void OptionsTableViewController::segmentChanged(platform::IndexPath path, int segment)
{
    change(path, OptionRow::Kind::Segments, segment != 0);
}

void OptionsTableViewController::change(platform::IndexPath path, OptionRow::Kind kind, bool on)
{
    const auto* row = optionRowAt(path);
    if (row != nullptr && row->kind == kind) {
        row->write(services().settings, row->key, on);
        if (row->tell != nullptr) {
            row->tell(services().notifications, services().analytics, on);
        }
    }
    flush();
    fieldsChanged = true;
}

void OptionsTableViewController::didSelectRow(platform::IndexPath path)
{
    // What it leads to lies over the screen and needs no mark under it.
    tableView().deselectRow(path);
    const auto* row = optionRowAt(path);
    if (row != nullptr && row->chooser != nullptr) {
        offer(row->chooser(services().bundle), path);
    } else if (row != nullptr && row->clearsHistory) {
        confirmClearingHistory(path);
    }
}

void OptionsTableViewController::offer(OptionChooser chooser, platform::IndexPath path)
{
    platform::ActionSheet sheet;
    sheet.title = std::move(chooser.title);
    for (auto& choice : chooser.choices) {
        sheet.actions.push_back({.title = std::move(choice.title),
                                 .style = platform::ActionStyle::Normal,
                                 .handler = [this, write = std::move(choice.write)] {
                                     write(services().settings);
                                     flush();
                                     tableView().reloadData();
                                     fieldsChanged = true;
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

void OptionsTableViewController::flush() const
{
    if (const auto written = services().settings.synchronize(); !written) {
        services().console << "Unable to write the settings: " << written.error().message
                           << std::endl;
    }
}

} // namespace lumora::navigation
