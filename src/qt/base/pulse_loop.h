// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <pulse/context.h>
#include <pulse/operation.h>
#include <pulse/subscribe.h>
#include <pulse/thread-mainloop.h>

#include <memory>

/// What everything that talks to the sound server, PulseAudio or PipeWire, needs
/// of its client library.
namespace lumora::qt {

struct PulseLoopDeleter {
    void operator()(pa_threaded_mainloop* loop) const { pa_threaded_mainloop_free(loop); }
};

/// Forgets its listeners and leaves the server.
struct PulseContextDeleter {
    void operator()(pa_context* context) const
    {
        pa_context_set_state_callback(context, nullptr, nullptr);
        pa_context_set_subscribe_callback(context, nullptr, nullptr);
        pa_context_disconnect(context);
        pa_context_unref(context);
    }
};

/// A thread of the client library, on which its callbacks come.
using PulseLoop = std::unique_ptr<pa_threaded_mainloop, PulseLoopDeleter>;
/// A connection to the server; ends under the loop's lock.
using PulseContext = std::unique_ptr<pa_context, PulseContextDeleter>;

/// Stops the loop's thread for the lifetime of this object.
class PulseLoopLock {
public:
    explicit PulseLoopLock(const PulseLoop& loop) : loop_{loop.get()}
    {
        pa_threaded_mainloop_lock(loop_);
    }
    PulseLoopLock(const PulseLoopLock&) = delete;
    PulseLoopLock& operator=(const PulseLoopLock&) = delete;
    ~PulseLoopLock() { pa_threaded_mainloop_unlock(loop_); }

private:
    pa_threaded_mainloop* loop_;
};

/// Releases an operation whose end nobody waits for.
inline void drop(pa_operation* operation)
{
    if (operation != nullptr) {
        pa_operation_unref(operation);
    }
}

} // namespace lumora::qt
