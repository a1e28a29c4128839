// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/base/error.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace lumora::platform {

using SettingValue = std::variant<bool, std::int64_t, double, std::string>;

/// One flat store of typed values, the user's and the program's.
///
/// A typed read coerces as this table says; a missing key reads as the type's
/// zero (none for a text). Fallbacks other than that belong to the reader,
/// who reads the key as an object, and nothing is coerced.
///
/// | stored  | as boolean           | as integer    | as float       | as text      |
/// |---------|----------------------|---------------|----------------|--------------|
/// | boolean | itself               | 1 or 0        | 1 or 0         | "1" or "0"   |
/// | integer | true unless 0        | itself        | the number     | its digits   |
/// | double  | true unless 0        | truncated     | the number     | its shortest |
/// | text    | false                | 0             | 0              | itself       |
class SettingsStore {
public:
    using Values = std::map<std::string, SettingValue, std::less<>>;

    SettingsStore() = default;
    SettingsStore(const SettingsStore&) = delete;
    SettingsStore& operator=(const SettingsStore&) = delete;
    virtual ~SettingsStore() = default;

    bool boolForKey(std::string_view key) const;
    std::int64_t integerForKey(std::string_view key) const;
    float floatForKey(std::string_view key) const;
    std::optional<std::string> stringForKey(std::string_view key) const;
    std::optional<SettingValue> objectForKey(std::string_view key) const;

    void setValue(SettingValue value, std::string_view key);
    void removeValue(std::string_view key);
    const Values& values() const { return values_; }

    /// Brings the values to storage; the file is not touched when nothing changed.
    virtual Result<void> synchronize() = 0;
    /// Takes in what another process has brought to storage since. Values that
    /// were changed here and not yet synchronized stay, all of them.
    virtual void refresh() {}

protected:
    void setValues(Values values);
    bool isChanged() const { return changed_; }
    void setUnchanged() { changed_ = false; }

private:
    Values values_;
    bool changed_ = false;
};

/// Forgets everything at its end.
class MemorySettingsStore final : public SettingsStore {
public:
    Result<void> synchronize() override { return {}; }
};

/// The value of the key if it is a boolean; none for a missing key and for any
/// other kind.
std::optional<bool> boolObjectForKey(const SettingsStore& settings, std::string_view key);

} // namespace lumora::platform
