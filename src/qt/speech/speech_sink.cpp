// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/speech/speech_sink.h"

#include <QAudioDevice>
#include <QAudioFormat>
#include <QIODevice>
#include <QMediaDevices>

#include <algorithm>
#include <span>

namespace lumora::qt {

namespace {

/// What sound servers usually hold back.
constexpr std::chrono::milliseconds kLatency{250};
/// Well within what fits the smallest buffers.
constexpr std::chrono::milliseconds kRefill{20};

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
    // All of it at once, most servers have room for minutes: it begins to sound
    // without waiting for more, and nothing that holds the window up is heard.
    rest_ = QByteArray{reinterpret_cast<const char*>(speech.samples.data()),
                       static_cast<qsizetype>(std::as_bytes(std::span{speech.samples}).size())};
    sink_ = std::make_unique<QAudioSink>(device, format);
    sink_->setBufferSize(rest_.size());
    stream_ = sink_->start();
    again_.setInterval(kRefill);
    QObject::connect(&again_, &QTimer::timeout, [this] { pour(); });
    pour();
}

SpeechSink::~SpeechSink()
{
    if (sink_) {
        sink_->reset();
    }
}

void SpeechSink::pour()
{
    const auto taken = stream_ != nullptr ? stream_->write(rest_) : -1;
    rest_.remove(0, std::max<qint64>(0, taken));
    if (taken < 0 || rest_.isEmpty()) {
        again_.stop();
    } else if (!again_.isActive()) {
        again_.start();
    }
}

std::chrono::milliseconds SpeechSink::latency() const
{
    return sink_ ? kLatency : std::chrono::milliseconds{0};
}

} // namespace lumora::qt
