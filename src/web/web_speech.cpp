// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "web/web_speech.h"

#include "text/brackets.h"
#include "text/text.h"

#include <algorithm>
#include <utility>

namespace lumora::web {

SpokenText::SpokenText(std::string_view written)
{
    auto spoken = text::withoutBracketedEndings(written);
    text = std::move(spoken.text);
    places = std::move(spoken.places);
    places.push_back(text::characterCount(written));
}

class WebSpeechSynthesizer final : public platform::SpeechSynthesizer {
public:
    explicit WebSpeechSynthesizer(WebSpeech& speech) : speech_{speech} {}
    ~WebSpeechSynthesizer() override
    {
        if (isSpeaking()) {
            quiet();
        }
    }
    WebSpeechSynthesizer(const WebSpeechSynthesizer&) = delete;
    WebSpeechSynthesizer& operator=(const WebSpeechSynthesizer&) = delete;

    void setDelegate(platform::SpeechSynthesizerDelegate* delegate) override
    {
        delegate_ = delegate;
    }

    void speak(const platform::Utterance& utterance) override
    {
        if (speech_.speaking_ != nullptr) {
            speech_.speaking_->stopSpeaking();
        }
        utterance_ = utterance;
        spoken_ = SpokenText{utterance.text};
        speech_.speaking_ = this;
        number_ = ++speech_.last_;
        speech_.outbox_.add({{"do", "speak"},
                             {"utterance", number_},
                             {"text", spoken_.text},
                             {"language", utterance.language},
                             {"rate", utterance.rate / platform::kDefaultSpeechRate},
                             {"man", utterance.voice == platform::Voice::Man}});
    }

    void stopSpeaking() override
    {
        if (isSpeaking()) {
            quiet();
            if (delegate_ != nullptr) {
                delegate_->didCancel(utterance_);
            }
        }
    }

    bool isSpeaking() const override { return speech_.speaking_ == this; }

    void hear(int utterance, std::string_view news, const Json& event) const
    {
        if (utterance != number_) {
            return;
        }
        // A copy: the delegate may speak again.
        const auto told = utterance_;
        if (news == "word") {
            const auto last = spoken_.places.size() - 1;
            const auto begin = std::min(event.value("location", std::size_t{0}), last);
            const auto end = std::min(begin + event.value("length", std::size_t{1}), last);
            if (delegate_ != nullptr) {
                delegate_->willSpeakRange(spoken_.places[begin],
                                          spoken_.places[end] - spoken_.places[begin], told);
            }
            return;
        }
        speech_.speaking_ = nullptr;
        if (delegate_ != nullptr) {
            news == "end" ? delegate_->didFinish(told) : delegate_->didCancel(told);
        }
    }

private:
    void quiet() const
    {
        speech_.speaking_ = nullptr;
        speech_.outbox_.add({{"do", "silence"}});
    }

    WebSpeech& speech_;
    platform::SpeechSynthesizerDelegate* delegate_ = nullptr;
    platform::Utterance utterance_;
    SpokenText spoken_{""};
    int number_ = 0;
};

std::unique_ptr<platform::SpeechSynthesizer> WebSpeech::makeSpeechSynthesizer()
{
    return std::make_unique<WebSpeechSynthesizer>(*this);
}

void WebSpeech::handle(int utterance, std::string_view news, const Json& event) const
{
    if (speaking_ != nullptr) {
        speaking_->hear(utterance, news, event);
    }
}

} // namespace lumora::web
