// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/speech/speech_engine.h"

#include <atomic>
#include <utility>

namespace lumora::qt {

struct SpeechEngine::Request::Job {
    platform::Utterance utterance;
    Done done;
    std::atomic<bool> cancelled = false;
    /// The thread's until it hands the job back.
    platform::Result<Speech> outcome;
};

SpeechEngine::Request::Request(std::shared_ptr<Job> job) : job_{std::move(job)} {}

SpeechEngine::Request::~Request()
{
    job_->cancelled = true;
}

SpeechEngine::SpeechEngine() : thread_{[this](const std::stop_token& stop) { work(stop); }} {}

SpeechEngine::~SpeechEngine() = default;

std::unique_ptr<SpeechEngine::Request>
SpeechEngine::synthesize(const platform::Utterance& utterance, Done done)
{
    auto job = std::make_shared<Request::Job>();
    job->utterance = utterance;
    job->done = std::move(done);
    {
        const std::scoped_lock lock{lock_};
        waitingJobs_.push_back(job);
    }
    waiting_.notify_one();
    return std::unique_ptr<Request>{new Request{std::move(job)}};
}

void SpeechEngine::work(const std::stop_token& stop)
{
    std::unique_lock lock{lock_};
    while (waiting_.wait(lock, stop, [this] { return !waitingJobs_.empty(); })) {
        const auto job = std::move(waitingJobs_.front());
        waitingJobs_.pop_front();
        lock.unlock();
        job->outcome = voice_.synthesize(job->utterance, job->cancelled);
        lock.lock();
        finishedJobs_.push_back(job);
        QMetaObject::invokeMethod(this, &SpeechEngine::deliver, Qt::QueuedConnection);
    }
}

void SpeechEngine::deliver()
{
    Jobs finished;
    {
        const std::scoped_lock lock{lock_};
        finished.swap(finishedJobs_);
    }
    for (const auto& job : finished) {
        if (!job->cancelled) {
            job->done(std::move(job->outcome));
        }
    }
}

} // namespace lumora::qt
