// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/machine/bundle.h"

#include <filesystem>
#include <map>
#include <optional>
#include <string>

namespace lumora::support {

class FakeBundle final : public platform::Bundle {
public:
    std::optional<std::filesystem::path> pathForResource(std::string_view name,
                                                         std::string_view extension) const override
    {
        return find(resources, std::string(name) + '.' + std::string(extension));
    }
    std::optional<std::string> infoValue(std::string_view key) const override
    {
        return find(info, key);
    }
    std::optional<std::string> textForKey(std::string_view key) const override
    {
        return find(texts, key);
    }

    /// By file name.
    std::map<std::string, std::filesystem::path, std::less<>> resources;
    std::map<std::string, std::string, std::less<>> info;
    std::map<std::string, std::string, std::less<>> texts;

private:
    template <typename Map>
    static std::optional<typename Map::mapped_type> find(const Map& map, std::string_view key)
    {
        const auto found = map.find(key);
        return found == map.end() ? std::nullopt : std::optional(found->second);
    }
};

} // namespace lumora::support
