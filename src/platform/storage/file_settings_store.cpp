// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/storage/file_settings_store.h"

#include "platform/files/atomic_file.h"

#include <nlohmann/json.hpp>

#include <cerrno>
#include <cmath>
#include <cstdint>
#include <type_traits>
#include <utility>

namespace lumora::platform {

namespace {

constexpr std::uintmax_t kMaximumFileBytes = std::uintmax_t{1024} * 1024;
constexpr int kIndent = 2;

std::optional<SettingValue> settingOf(const nlohmann::json& value)
{
    switch (value.type()) {
    case nlohmann::json::value_t::boolean:
        return value.get<bool>();
    case nlohmann::json::value_t::number_integer:
        return value.get<std::int64_t>();
    case nlohmann::json::value_t::number_unsigned: {
        const auto number = value.get<std::uint64_t>();
        if (!std::in_range<std::int64_t>(number)) {
            return static_cast<double>(number);
        }
        return static_cast<std::int64_t>(number);
    }
    case nlohmann::json::value_t::number_float:
        return value.get<double>();
    case nlohmann::json::value_t::string:
        return value.get<std::string>();
    default:
        return std::nullopt;
    }
}

std::optional<SettingsStore::Values> valuesIn(const std::string& content)
{
    const auto document = nlohmann::json::parse(content, nullptr, false);
    if (!document.is_object()) {
        return std::nullopt;
    }
    SettingsStore::Values values;
    for (const auto& [key, value] : document.items()) {
        if (auto setting = settingOf(value)) {
            values.emplace(key, *std::move(setting));
        }
    }
    return values;
}

std::string rendered(const SettingsStore::Values& values)
{
    nlohmann::json object = nlohmann::json::object();
    for (const auto& [key, value] : values) {
        std::visit(
            [&object, &name = key](const auto& stored) {
                if constexpr (std::is_same_v<std::decay_t<decltype(stored)>, double>) {
                    if (!std::isfinite(stored)) {
                        return;
                    }
                }
                object[name] = stored;
            },
            value);
    }
    return object.dump(kIndent, ' ', false, nlohmann::json::error_handler_t::replace) + '\n';
}

} // namespace

FileSettingsStore::FileSettingsStore(std::filesystem::path file) : file_(std::move(file))
{
    const auto content = readFile(file_, kMaximumFileBytes);
    const int code = content ? 0 : content.error().code;
    if (code == ENOENT || code == ENOTDIR) {
        return;
    }
    if (!content && code != EFBIG) {
        refused_ = content.error();
        return;
    }
    if (auto values = content ? valuesIn(*content) : std::nullopt) {
        setValues(*std::move(values));
        return;
    }
    std::filesystem::path aside = file_;
    aside += ".damaged";
    if (const auto renamed = renameDurably(file_, aside); !renamed) {
        refused_ = renamed.error();
    }
}

FileSettingsStore::~FileSettingsStore()
{
    static_cast<void>(FileSettingsStore::synchronize());
}

void FileSettingsStore::refresh()
{
    if (isChanged()) {
        return;
    }
    const auto content = readFile(file_, kMaximumFileBytes);
    if (auto values = content ? valuesIn(*content) : std::nullopt) {
        setValues(*std::move(values));
    }
}

Result<void> FileSettingsStore::synchronize()
{
    if (!isChanged()) {
        return {};
    }
    if (refused_) {
        return tl::unexpected(*refused_);
    }
    if (auto made = makePrivateFolder(file_.parent_path()); !made) {
        return made;
    }
    auto written = writeFileAtomically(file_, rendered(values()));
    if (written) {
        setUnchanged();
    }
    return written;
}

} // namespace lumora::platform
