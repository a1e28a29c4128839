// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/speech_synthesizer.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

#include <algorithm>
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
        std::vector<std::string> all(events.size());
        std::transform(events.begin(), events.end(), all.begin(),
                       [](const Event& event) { return event.what; });
        return all;
    }

    /// Lets the event loop run until `condition` holds; false when it does not
    /// within some seconds.
    static bool waitUntil(const std::function<bool()>& condition, int milliseconds = 8000)
    {
        QEventLoop loop;
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, &loop, [&] {
            if (condition()) {
                loop.quit();
            }
        });
        look.start(2);
        QTimer::singleShot(milliseconds, &loop, [&] { loop.exit(1); });
        return condition() || loop.exec() == 0;
    }
    static void waitFor(int milliseconds)
    {
        waitUntil([] { return false; }, milliseconds);
    }
    bool waitForEnd() const
    {
        return waitUntil(
            [this] { return !events.empty() && !events.back().what.starts_with("w"); });
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
