// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/storage/settings_store.h"

#include <filesystem>
#include <optional>

namespace lumora::platform {

/// Settings in one JSON file, written whole under a temporary name, synced and
/// renamed, so that it is always one old or one new version.
///
/// A file that cannot be read as a flat object of booleans, numbers and texts
/// is renamed to `<name>.damaged` (over an older one) and the store starts
/// empty; single values of another kind are dropped. 1 and 1.0 stay apart.
/// The folder is made when missing. Pending values are written at the end.
class FileSettingsStore final : public SettingsStore {
public:
    explicit FileSettingsStore(std::filesystem::path file);
    ~FileSettingsStore() override;

    Result<void> synchronize() override;
    /// A file that cannot be read, or is gone, changes nothing.
    void refresh() override;

private:
    std::filesystem::path file_;
    /// Why the file must not be written: it is there but could not be read.
    std::optional<Error> refused_;
};

} // namespace lumora::platform
