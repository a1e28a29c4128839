// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/machine/speech_synthesizer.h"
#include "web/outbox.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace lumora::web {

class WebSpeechSynthesizer;

/// The browser's voice, which the page controls. Each utterance has a number, by which
/// the page reports on it.
class WebSpeech final : public platform::SpeechSynthesizerFactory {
public:
    explicit WebSpeech(Outbox& outbox) : outbox_{outbox} {}

    std::unique_ptr<platform::SpeechSynthesizer> makeSpeechSynthesizer() override;
    /// What the page heard: "word" with "location" and "length" in what is spoken,
    /// "end" or "cancel". News of an utterance that is over is nothing.
    void handle(int utterance, std::string_view news, const Json& event) const;

private:
    friend class WebSpeechSynthesizer;

    Outbox& outbox_;
    int last_ = 0;
    /// The one whose utterance is under way; null for none.
    WebSpeechSynthesizer* speaking_ = nullptr;
};

/// A text without the endings in brackets, which are not spoken: "allé(e)" is
/// "allé". All places count characters.
struct SpokenText {
    explicit SpokenText(std::string_view written);

    std::string text;
    /// Where each spoken character, and at last the end, is in the written text.
    std::vector<std::size_t> places;
};

} // namespace lumora::web
