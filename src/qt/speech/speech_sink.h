// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "qt/speech/speech.h"

#include <QAudioSink>
#include <QByteArray>
#include <QTimer>

#include <chrono>
#include <memory>

namespace lumora::qt {

/// Plays one speech on the default output device; does nothing where there is
/// none. Its destruction ends the sound at once.
class SpeechSink {
public:
    explicit SpeechSink(const Speech& speech);
    ~SpeechSink();

    /// How long the output may still sound after the speech's last sample.
    std::chrono::milliseconds latency() const;

private:
    void pour();

    std::unique_ptr<QAudioSink> sink_;
    QIODevice* stream_ = nullptr;
    /// What the server had no room for yet.
    QByteArray rest_;
    QTimer again_;
};

} // namespace lumora::qt
