// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/base/error.h"
#include "platform/machine/speech_synthesizer.h"
#include "qt/speech/espeak_voice.h"
#include "qt/speech/speech.h"

#include <QObject>

#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace lumora::qt {

/// Synthesises speech on a thread of its own, one utterance after another, so
/// that the window never waits for it. Otherwise GUI thread only.
class SpeechEngine final : public QObject {
    Q_OBJECT

public:
    using Done = std::function<void(platform::Result<Speech>)>;

    /// Work under way. Its destruction cancels it; `done` is not called then.
    class Request {
    public:
        Request(const Request&) = delete;
        Request& operator=(const Request&) = delete;
        ~Request();

    private:
        friend class SpeechEngine;
        struct Job;
        explicit Request(std::shared_ptr<Job> job);
        std::shared_ptr<Job> job_;
    };

    SpeechEngine();
    ~SpeechEngine() override;

    /// `done` is called on the GUI thread, never during this call.
    std::unique_ptr<Request> synthesize(const platform::Utterance& utterance, Done done);

private:
    using Jobs = std::deque<std::shared_ptr<Request::Job>>;

    void work(const std::stop_token& stop);
    void deliver();

    EspeakVoice voice_;
    std::mutex lock_;
    std::condition_variable_any waiting_;
    Jobs waitingJobs_;
    Jobs finishedJobs_;
    /// Last: it ends before what it works on.
    std::jthread thread_;
};

} // namespace lumora::qt
