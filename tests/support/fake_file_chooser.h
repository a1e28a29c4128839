// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/file_chooser.h"

#include <optional>
#include <utility>

namespace lumora::support {

/// Keeps the question; the test answers it.
class FakeFileChooser final : public platform::FileChooser {
public:
    void choose(const platform::FileQuestion& asked,
                std::function<void(const std::filesystem::path&)> then) override
    {
        question = asked;
        chosen = std::move(then);
    }

    std::optional<platform::FileQuestion> question;
    std::function<void(const std::filesystem::path&)> chosen;
};

} // namespace lumora::support
