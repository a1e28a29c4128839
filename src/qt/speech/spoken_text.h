// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/machine/speech_synthesizer.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lumora::qt {

/// An utterance as the voice gets it: words whose sounds are known as phonemes
/// in double brackets, the others as they are written. Endings in brackets, as
/// in "allé(e)(s)", are not spoken: they are left out. Places in what is spoken
/// are led back to the written text. All places count characters.
///
/// Words without a sign between them, as in "j'aime", are spoken as one.
class SpokenText {
public:
    explicit SpokenText(const platform::Utterance& utterance);

    const std::string& text() const { return text_; }
    bool hasPhonemes() const { return !groups_.empty(); }
    /// Location and length in the written text of a spoken word, its bracketed
    /// endings with it.
    std::pair<std::size_t, std::size_t> writtenRange(std::size_t location,
                                                     std::size_t length) const;

private:
    /// Words spoken as one, by their phonemes.
    struct Group {
        std::size_t spokenBegin = 0;
        std::size_t spokenEnd = 0;
        std::size_t location = 0;
        std::size_t length = 0;
    };

    void addText(std::string_view written, std::size_t place);
    void addPhonemes(std::string_view names, std::size_t location, std::size_t length);

    std::string text_;
    /// Where each spoken character, and at last the end, is in the written text.
    std::vector<std::size_t> places_;
    std::vector<Group> groups_;
};

} // namespace lumora::qt
