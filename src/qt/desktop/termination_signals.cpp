// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/desktop/termination_signals.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace lumora::qt {

namespace {

constexpr std::array kSignals{SIGTERM, SIGINT, SIGHUP};

/// All that a handler may reach.
std::atomic<int> pipeEnd{-1};

void tellThePipe(int /*signal*/)
{
    const int before = errno;
    const char byte = 0;
    [[maybe_unused]] const auto written = ::write(pipeEnd, &byte, 1);
    errno = before;
}

} // namespace

TerminationSignals::TerminationSignals()
{
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return;
    }
    reader_ = platform::FileDescriptor{ends[0]};
    writer_ = platform::FileDescriptor{ends[1]};
    pipeEnd = writer_.number();
    notifier_.emplace(reader_.number(), QSocketNotifier::Read);
    connect(&*notifier_, &QSocketNotifier::activated, this, [this] {
        notifier_->setEnabled(false);
        emit received();
    });

    struct sigaction handling = {};
    handling.sa_handler = tellThePipe;
    handling.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
    for (const int signal : kSignals) {
        struct sigaction before = {};
        ::sigaction(signal, nullptr, &before);
        // A signal that is ignored stays ignored: nohup relies on that.
        if (before.sa_handler != SIG_IGN) {
            ::sigaction(signal, &handling, nullptr);
        }
    }
}

TerminationSignals::~TerminationSignals()
{
    for (const int signal : kSignals) {
        struct sigaction now = {};
        ::sigaction(signal, nullptr, &now);
        if (now.sa_handler == tellThePipe) {
            std::signal(signal, SIG_DFL);
        }
    }
    pipeEnd = -1;
}

} // namespace lumora::qt
