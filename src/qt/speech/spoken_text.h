// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lumora::qt {

/// A text as the voice gets it. Endings in brackets, as in "allé(e)(s)", are
/// for the eye: they are left out, and places in what is spoken are led back to
/// the whole text. All places count characters.
class SpokenText {
public:
    explicit SpokenText(std::string_view written);

    const std::string& text() const { return text_; }
    /// Location and length in the written text of a spoken word, its bracketed
    /// endings with it.
    std::pair<std::size_t, std::size_t> writtenRange(std::size_t location,
                                                     std::size_t length) const;

private:
    std::string text_;
    /// Where each spoken character, and at last the end, is in the written text.
    std::vector<std::size_t> places_;
};

} // namespace lumora::qt
