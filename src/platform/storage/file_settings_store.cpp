// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/storage/file_settings_store.h"

#include "platform/files/atomic_file.h"

#include <nlohmann/json.hpp>

#include <cerrno>
#include <cmath>
#include <type_traits>
#include <utility>

namespace lumora::platform {

namespace {

constexpr std::uintmax_t kMaximumBytes = std::uintmax_t{1024} * 1024;
constexpr int kIndent = 2;

/// Takes the scalars of the outermost object as they come, so that neither
/// depth nor size of what is dropped costs anything.
class SettingsReader final : public nlohmann::json_sax<nlohmann::json> {
public:
    SettingsStore::Values values;

    bool null() override { return rootIsObject(); }
    bool boolean(bool value) override { return take(value); }
    bool number_integer(number_integer_t value) override { return take(value); }
    bool number_unsigned(number_unsigned_t value) override
    {
        // Only those past the end of the signed range come this way.
        return std::in_range<std::int64_t>(value) ? take(static_cast<std::int64_t>(value))
                                                  : take(static_cast<double>(value));
    }
    bool number_float(number_float_t value, const string_t& /*text*/) override
    {
        return take(value);
    }
    bool string(string_t& value) override { return take(std::move(value)); }
    bool binary(binary_t& /*value*/) override { return rootIsObject(); }
    bool start_object(std::size_t /*elements*/) override
    {
        ++depth_;
        return true;
    }
    bool key(string_t& value) override
    {
        if (depth_ == 1) {
            key_ = std::move(value);
        }
        return true;
    }
    bool end_object() override
    {
        --depth_;
        return true;
    }
    bool start_array(std::size_t /*elements*/) override
    {
        return rootIsObject() && (++depth_, true);
    }
    bool end_array() override
    {
        --depth_;
        return true;
    }
    bool parse_error(std::size_t /*position*/, const std::string& /*token*/,
                     const nlohmann::detail::exception& /*error*/) override
    {
        return false;
    }

private:
    bool rootIsObject() const { return depth_ > 0; }
    bool take(SettingValue value)
    {
        if (depth_ == 1) {
            values.insert_or_assign(key_, std::move(value));
        }
        return rootIsObject();
    }

    std::size_t depth_ = 0;
    std::string key_;
};

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
    const auto content = readFile(file_, kMaximumBytes);
    const int code = content ? 0 : content.error().code;
    if (code == ENOENT || code == ENOTDIR) {
        return;
    }
    if (!content && code != EFBIG) {
        refused_ = content.error();
        return;
    }
    SettingsReader reader;
    if (content && nlohmann::json::sax_parse(*content, &reader)) {
        setValues(std::move(reader.values));
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
    SettingsReader reader;
    if (const auto content = readFile(file_, kMaximumBytes);
        content && nlohmann::json::sax_parse(*content, &reader)) {
        setValues(std::move(reader.values));
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
