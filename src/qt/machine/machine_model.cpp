// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/machine/machine_model.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <string_view>

namespace lumora::qt {

namespace {

constexpr std::array kPlaces{"devices/virtual/dmi/id/product_name",
                             "firmware/devicetree/base/model"};

/// Texts that makers of mainboards forget to replace by a name.
constexpr std::array<std::string_view, 5> kPlaceholders{
    "System Product Name", "To Be Filled By O.E.M.", "To be filled by O.E.M.", "Default string",
    "None"};

std::string firstLine(const std::filesystem::path& file)
{
    std::ifstream stream{file};
    std::string line;
    std::getline(stream, line);
    // A device tree ends its texts with a zero byte.
    const auto end = line.find_last_not_of(std::string_view{" \t\r\0", 4});
    return end == std::string::npos ? std::string{} : line.substr(0, end + 1);
}

} // namespace

std::optional<std::string> machineModel(const std::filesystem::path& sys)
{
    for (const char* place : kPlaces) {
        auto model = firstLine(sys / place);
        if (!model.empty() &&
            std::find(kPlaceholders.begin(), kPlaceholders.end(), model) == kPlaceholders.end()) {
            return model;
        }
    }
    return std::nullopt;
}

} // namespace lumora::qt
