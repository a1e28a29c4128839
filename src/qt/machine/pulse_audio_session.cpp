// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/machine/pulse_audio_session.h"

#include <pulse/error.h>
#include <pulse/introspect.h>
#include <pulse/subscribe.h>
#include <pulse/volume.h>

#include <algorithm>
#include <cmath>
#include <string>

namespace lumora::qt {

namespace {

constexpr float kNoOutput = 1;
/// The server's volume steps do not fall on whole percents: rounded to thousandths.
constexpr double kPrecision = 1000;

float volumeOf(const pa_sink_info& info)
{
    if (info.mute != 0) {
        return 0;
    }
    const double part = static_cast<double>(pa_cvolume_max(&info.volume)) / PA_VOLUME_NORM;
    return static_cast<float>(std::clamp(std::round(part * kPrecision) / kPrecision, 0.0, 1.0));
}

} // namespace

PulseAudioSession::PulseAudioSession() : loop_{pa_threaded_mainloop_new()}
{
    if (!loop_) {
        error_ = PA_ERR_INTERNAL;
        return;
    }
    connect();
    if (pa_threaded_mainloop_start(loop_.get()) < 0) {
        context_.reset();
        loop_.reset();
        error_ = PA_ERR_INTERNAL;
    }
}

PulseAudioSession::~PulseAudioSession()
{
    if (loop_) {
        {
            const PulseLoopLock lock{loop_};
            context_.reset();
        }
        pa_threaded_mainloop_stop(loop_.get());
    }
}

platform::Result<void> PulseAudioSession::activate()
{
    const int error = error_;
    if (error == 0) {
        return {};
    }
    if (loop_) {
        const PulseLoopLock lock{loop_};
        connect();
    }
    // Without a server there is nothing to activate, which is no error.
    if (error == PA_ERR_CONNECTIONREFUSED) {
        return {};
    }
    return tl::unexpected{platform::Error{pa_strerror(error), error}};
}

void PulseAudioSession::connect()
{
    error_ = 0;
    context_.reset(pa_context_new(pa_threaded_mainloop_get_api(loop_.get()), "Lumora"));
    if (!context_) {
        error_ = PA_ERR_INTERNAL;
        return;
    }
    pa_context_set_state_callback(
        context_.get(),
        [](pa_context* context, void* self) {
            static_cast<PulseAudioSession*>(self)->stateChanged(context);
        },
        this);
    if (pa_context_connect(context_.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0) {
        error_ = pa_context_errno(context_.get());
    }
}

void PulseAudioSession::stateChanged(pa_context* context)
{
    const auto state = pa_context_get_state(context);
    if (!PA_CONTEXT_IS_GOOD(state)) {
        error_ = std::max(pa_context_errno(context), 1);
        volume_ = kNoOutput;
    } else if (state == PA_CONTEXT_READY) {
        pa_context_set_subscribe_callback(
            context,
            [](pa_context* changed, pa_subscription_event_type_t, std::uint32_t, void* self) {
                static_cast<PulseAudioSession*>(self)->query(changed);
            },
            this);
        // The server itself says when another output becomes the default.
        drop(pa_context_subscribe(context,
                                  static_cast<pa_subscription_mask_t>(PA_SUBSCRIPTION_MASK_SINK |
                                                                      PA_SUBSCRIPTION_MASK_SERVER),
                                  nullptr, nullptr));
        query(context);
    }
}

void PulseAudioSession::query(pa_context* context)
{
    drop(pa_context_get_sink_info_by_name(
        context, "@DEFAULT_SINK@",
        [](pa_context*, const pa_sink_info* info, int end, void* self) {
            static_cast<PulseAudioSession*>(self)->sinkInfo(info, end);
        },
        this));
}

void PulseAudioSession::sinkInfo(const pa_sink_info* info, int end)
{
    if (info != nullptr) {
        volume_ = volumeOf(*info);
    } else if (end < 0) {
        volume_ = kNoOutput;
    }
}

} // namespace lumora::qt
