// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "navigation/option_rows.h"
#include "platform/base/color.h"
#include "platform/screens/table_view_controller.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace lumora::backup {
class BackupMenu;
}

namespace lumora::exporting {
class SupportEmailSender;
}

namespace lumora::platform {
class DatabaseQueue;
}

namespace lumora::navigation {

class OptionsTableViewControllerDelegate {
public:
    virtual ~OptionsTableViewControllerDelegate() = default;
    /// The options screen has gone. `fieldsChanged`: whether the user changed
    /// anything on it.
    virtual void optionsClosed(bool fieldsChanged) = 0;
};

/// An image with rounded corners and a border; lengths in points.
struct ImageView {
    std::string image;
    double cornerRadius = 0;
    bool clipsToBounds = false;
    double borderWidth = 0;
    platform::Color borderColor;
};

/// What stands above the rows. The buttons lead to openWebsite() and
/// sendSupportEmail().
struct OptionsHeader {
    ImageView iconImageView;
    std::string titleLabel;
    std::string copyrightLabel;
    std::string openWebsiteButton;
    std::string emailSupportButton;
};

/// The settings: each row shows what the store holds when it is drawn, and
/// writes it at once.
class OptionsTableViewController final : public platform::TableViewController {
public:
    explicit OptionsTableViewController(const platform::Services& services);
    ~OptionsTableViewController() override;

    /// Filled on load.
    OptionsHeader header;
    /// The maker's website.
    std::string webUrl;
    /// Whether anything was changed since the screen appeared.
    bool fieldsChanged = false;
    /// Not owned; may be null.
    OptionsTableViewControllerDelegate* delegate = nullptr;
    std::shared_ptr<exporting::SupportEmailSender> supportEmailSender;
    /// The row that the screen opens at; none for its beginning.
    std::optional<platform::IndexPath> firstRow;
    /// The shared queue. Not owned; null when there is no database.
    platform::DatabaseQueue* queue = nullptr;
    /// Of the last time its button was pressed.
    std::shared_ptr<backup::BackupMenu> backupMenu;

    /// The Done button. Without a delegate it does nothing.
    void close();
    void openWebsite();
    void sendSupportEmail();
    /// Offers to save favourites and history to a file and to restore them.
    void showBackupMenu();

    void viewWillAppear() override;
    void viewDidAppear() override;

    int numberOfSections() override;
    int numberOfRowsInSection(int section) override;
    std::optional<std::string> titleForHeaderInSection(int section) override;
    std::optional<std::string> titleForFooterInSection(int section) override;
    platform::TableCell cellForRow(platform::IndexPath path) override;
    void didSelectRow(platform::IndexPath path) override;
    void switchToggled(platform::IndexPath path, bool on) override;
    void segmentChanged(platform::IndexPath path, int segment) override;

protected:
    void viewDidLoad() override;

private:
    std::string text(std::string_view key) const;
    std::string detailOf(const OptionRow& row) const;
    std::string labelOf(const OptionRow& row) const;
    void change(platform::IndexPath path, OptionRow::Kind kind, bool on);
    /// The chosen value is stored at once.
    /// `present` is the title of the choice that holds now.
    void offer(OptionChooser chooser, std::string_view present, platform::IndexPath path);
    void confirmClearingHistory(platform::IndexPath path);
    void clearHistory();
    void flush() const;
};

} // namespace lumora::navigation
