// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/speech_sink.h"

#include <QAudioDevice>
#include <QAudioFormat>
#include <QIODevice>
#include <QMediaDevices>

#include <span>

namespace lumora::qt {

namespace {

/// What sound servers usually hold back.
constexpr std::chrono::milliseconds kLatency{250};

} // namespace

SpeechSink::SpeechSink(const Speech& speech)
{
    const auto device = QMediaDevices::defaultAudioOutput();
    QAudioFormat format;
    format.setSampleRate(speech.sampleRate);
    format.setChannelCount(1);
    format.setSampleFormat(QAudioFormat::Int16);
    if (device.isNull() || !device.isFormatSupported(format)) {
        return;
    }
    // All of it at once, a server has room for minutes: it begins to sound
    // without waiting for more, and nothing that holds the window up is heard.
    const auto bytes = static_cast<qsizetype>(std::as_bytes(std::span{speech.samples}).size());
    sink_ = std::make_unique<QAudioSink>(device, format);
    sink_->setBufferSize(bytes);
    if (auto* stream = sink_->start()) {
        stream->write(reinterpret_cast<const char*>(speech.samples.data()), bytes);
    }
}

SpeechSink::~SpeechSink()
{
    if (sink_) {
        sink_->reset();
    }
}

std::chrono::milliseconds SpeechSink::afterlife() const
{
    return sink_ ? kLatency : std::chrono::milliseconds{0};
}

} // namespace lumora::qt
