// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/machine/speech_synthesizer.h"

#include <QElapsedTimer>
#include <QtTest/QTest>

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace lumora::support {

/// Writes down what it hears of utterances and when.
class SpeechListener final : public platform::SpeechSynthesizerDelegate {
public:
    struct Event {
        /// "word 0+2", "finish" or "cancel", and the text it is about.
        std::string what;
        std::string text;
        int milliseconds = 0;
    };

    SpeechListener() { clock_.start(); }

    void willSpeakRange(std::size_t location, std::size_t length,
                        const platform::Utterance& utterance) override
    {
        note("word " + std::to_string(location) + "+" + std::to_string(length), utterance);
    }
    void didFinish(const platform::Utterance& utterance) override { note("finish", utterance); }
    void didCancel(const platform::Utterance& utterance) override { note("cancel", utterance); }

    std::vector<std::string> whats() const
    {
        std::vector<std::string> all;
        for (const auto& event : events) {
            all.push_back(event.what);
        }
        return all;
    }

    /// False when it takes more than some seconds.
    bool waitForEnd() const
    {
        return QTest::qWaitFor(
            [this] { return !events.empty() && !events.back().what.starts_with("w"); }, 8000);
    }

    std::vector<Event> events;
    std::function<void(const Event&)> onEvent;

private:
    void note(const std::string& what, const platform::Utterance& utterance)
    {
        events.push_back({what, utterance.text, static_cast<int>(clock_.elapsed())});
        if (onEvent) {
            onEvent(Event{events.back()});
        }
    }

    QElapsedTimer clock_;
};

} // namespace lumora::support
