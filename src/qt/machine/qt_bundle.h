// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/machine/bundle.h"

#include <map>

namespace lumora::qt {

/// The installed share folder: its files are the resources, its "bundle.json"
/// (one flat object of texts) the facts about the program. Texts come from the
/// installed translators.
class QtBundle final : public platform::Bundle {
public:
    explicit QtBundle(std::filesystem::path shareFolder);

    std::optional<std::filesystem::path> pathForResource(std::string_view name,
                                                         std::string_view extension) const override;
    std::optional<std::string> infoValue(std::string_view key) const override;
    std::optional<std::string> textForKey(std::string_view key) const override;

private:
    std::filesystem::path shareFolder_;
    std::map<std::string, std::string, std::less<>> info_;
};

} // namespace lumora::qt
