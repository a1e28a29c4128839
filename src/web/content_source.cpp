// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "web/content_source.h"

#include <exception>
#include <iostream>
#include <utility>

namespace lumora::web {

const verbdb::Content* ContentSource::get()
{
    if (!std::exchange(read_, true)) {
        try {
            content_ = verbdb::readContent(folder_);
        } catch (const std::exception& error) {
            std::cerr << "lumora: " << error.what() << '\n';
        }
    }
    return content_ ? &*content_ : nullptr;
}

} // namespace lumora::web
