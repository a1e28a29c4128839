// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/form_parts.h"

#include <cstdint>
#include <iosfwd>

namespace lumora::platform {
class Database;
class SettingsStore;
} // namespace lumora::platform

namespace lumora::detail {

/// Whether stems and endings are told apart on a verb's page, and how its forms
/// divide. What the constructor takes must outlive the object.
class FormMarks {
public:
    FormMarks(platform::SettingsStore& viewMemory, std::ostream& console);

    /// As the person left it on the last page.
    void load();
    bool on() const { return on_; }
    /// For this page and those to come; the console is told where that fails.
    void set(bool on);

    /// The console is told where the database does not know.
    void read(platform::Database& database, std::int64_t verbId);
    /// Null where nothing is marked.
    const data::FormDivisions* shown() const { return on_ ? &divisions_ : nullptr; }

private:
    platform::SettingsStore& viewMemory_;
    std::ostream& console_;
    data::FormDivisions divisions_;
    bool on_ = true;
};

} // namespace lumora::detail
