// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/speech/speech_sink.h"

#include <pulse/sample.h>

#include <algorithm>

namespace lumora::qt {

namespace {

/// What sound servers usually hold back.
constexpr std::chrono::milliseconds kLatency{250};
constexpr auto kServersChoice = static_cast<std::uint32_t>(-1);

} // namespace

void SpeechSink::StreamDeleter::operator()(pa_stream* stream) const
{
    pa_stream_set_state_callback(stream, nullptr, nullptr);
    pa_stream_set_write_callback(stream, nullptr, nullptr);
    pa_stream_disconnect(stream);
    pa_stream_unref(stream);
}

SpeechSink::SpeechSink(const Speech& speech)
    : speech_{speech}, rest_{speech.samples}, loop_{pa_threaded_mainloop_new()}
{
    if (!loop_ || !connect() || pa_threaded_mainloop_start(loop_.get()) < 0) {
        silent_ = true;
    }
}

SpeechSink::~SpeechSink()
{
    if (!loop_) {
        return;
    }
    {
        const PulseLoopLock lock{loop_};
        stream_.reset();
        context_.reset();
    }
    pa_threaded_mainloop_stop(loop_.get());
}

std::chrono::milliseconds SpeechSink::latency() const
{
    return silent_ ? std::chrono::milliseconds{0} : kLatency;
}

bool SpeechSink::connect()
{
    context_.reset(pa_context_new(pa_threaded_mainloop_get_api(loop_.get()), "Lumora"));
    if (!context_) {
        return false;
    }
    pa_context_set_state_callback(
        context_.get(),
        [](pa_context*, void* self) { static_cast<SpeechSink*>(self)->stateChanged(); }, this);
    return pa_context_connect(context_.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) >= 0;
}

void SpeechSink::stateChanged()
{
    const auto state = pa_context_get_state(context_.get());
    if (!PA_CONTEXT_IS_GOOD(state)) {
        silent_ = true;
    } else if (state == PA_CONTEXT_READY) {
        play();
    }
}

void SpeechSink::play()
{
    const pa_sample_spec format{PA_SAMPLE_S16NE, static_cast<std::uint32_t>(speech_.sampleRate), 1};
    // Begins to sound with the first sample, without waiting for more.
    constexpr pa_buffer_attr kBuffer{kServersChoice, kServersChoice, sizeof(std::int16_t),
                                     kServersChoice, kServersChoice};
    stream_.reset(pa_stream_new(context_.get(), "Speech", &format, nullptr));
    if (!stream_) {
        silent_ = true;
        return;
    }
    pa_stream_set_write_callback(
        stream_.get(),
        [](pa_stream*, std::size_t room, void* self) {
            static_cast<SpeechSink*>(self)->pour(room);
        },
        this);
    pa_stream_set_state_callback(
        stream_.get(),
        [](pa_stream* stream, void* self) {
            if (pa_stream_get_state(stream) == PA_STREAM_FAILED) {
                static_cast<SpeechSink*>(self)->silent_ = true;
            }
        },
        this);
    if (pa_stream_connect_playback(stream_.get(), nullptr, &kBuffer, PA_STREAM_NOFLAGS, nullptr,
                                   nullptr) < 0) {
        silent_ = true;
    }
}

void SpeechSink::pour(std::size_t room)
{
    const auto part = rest_.first(std::min(rest_.size(), room / sizeof(std::int16_t)));
    if (part.empty()) {
        return;
    }
    const auto bytes = std::as_bytes(part);
    if (pa_stream_write(stream_.get(), bytes.data(), bytes.size(), nullptr, 0, PA_SEEK_RELATIVE) <
        0) {
        silent_ = true;
    }
    rest_ = rest_.subspan(part.size());
}

} // namespace lumora::qt
