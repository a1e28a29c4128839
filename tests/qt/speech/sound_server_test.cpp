// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/machine/pulse_audio_session.h"

#include "qt/speech/espeak_voice.h"
#include "qt/speech/qt_speech.h"
#include "speech_listener.h"
#include "support/temporary_folder.h"

#include <QProcess>
#include <QStandardPaths>

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

namespace lumora::qt {
namespace {

using support::SpeechListener;

/// A sound server of the test's own, whose one output leads nowhere.
class SoundServer {
public:
    SoundServer()
    {
        qputenv("PULSE_SERVER", "unix:" + socket().toUtf8());
        qputenv("PULSE_RUNTIME_PATH", folder_.path().c_str());
        qputenv("PULSE_STATE_PATH", folder_.path().c_str());
        qputenv("PULSE_COOKIE", (folder_ / "cookie").c_str());
    }
    ~SoundServer() { stop(); }

    /// Why there is none now; empty when there is.
    std::string start()
    {
        for (const char* program : {"pulseaudio", "pactl", "parec"}) {
            if (QStandardPaths::findExecutable(program).isEmpty()) {
                return std::string{"there is no "} + program + " on this machine";
            }
        }
        process_.setProcessChannelMode(QProcess::MergedChannels);
        process_.start("pulseaudio",
                       {"-n", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=30",
                        "--log-level=error", "-L",
                        QStringLiteral("module-native-protocol-unix socket=") + socket(), "-L",
                        "module-null-sink sink_name=nowhere"});
        const auto runs = [this] { return process_.state() == QProcess::Running; };
        process_.waitForStarted();
        std::ignore = QTest::qWaitFor([&] { return !runs() || control({"info"}); }, 4000);
        return runs() && control({"info"})
                   ? std::string{}
                   : "no sound server could be started: " + process_.readAll().toStdString();
    }
    void stop()
    {
        process_.kill();
        process_.waitForFinished();
    }

    static bool control(const QStringList& words)
    {
        QProcess pactl;
        pactl.start("pactl", words);
        return pactl.waitForFinished(2000) && pactl.exitCode() == 0;
    }

private:
    QString socket() const { return QString::fromStdString((folder_ / "native").string()); }

    support::TemporaryFolder folder_;
    QProcess process_;
};

class SoundServerTest : public testing::Test {
protected:
    void SetUp() override
    {
        if (const auto why = server.start(); !why.empty()) {
            GTEST_SKIP() << why;
        }
    }

    SoundServer server;
};

/// What the output plays, as it plays it.
class Recorder {
public:
    static constexpr int kRate = 22050;

    Recorder()
    {
        process_.start("parec",
                       {"--device=nowhere.monitor", "--raw", "--format=s16le", "--channels=1",
                        QStringLiteral("--rate=%1").arg(kRate), "--latency-msec=20"});
        std::ignore = QTest::qWaitFor([this] { return process_.bytesAvailable() > 0; });
    }

    /// From the first sample that sounds to the last, in seconds.
    double secondsOfSound()
    {
        const auto bytes = process_.readAll();
        const auto* begin = reinterpret_cast<const std::int16_t*>(bytes.constData());
        const std::vector<std::int16_t> samples(begin, begin + bytes.size() / 2);
        std::size_t first = samples.size();
        std::size_t last = 0;
        for (std::size_t i = 0; i < samples.size(); ++i) {
            if (std::abs(samples[i]) > 200) {
                first = std::min(first, i);
                last = i;
            }
        }
        return first > last ? 0 : static_cast<double>(last - first) / kRate;
    }

    ~Recorder()
    {
        process_.kill();
        process_.waitForFinished();
    }

private:
    QProcess process_;
};

TEST_F(SoundServerTest, FollowsTheVolumeOfTheDefaultOutput)
{
    const PulseAudioSession session;
    struct Case {
        QStringList command;
        float volume;
        const char* why;
    };
    const Case cases[] = {
        {{"set-sink-volume", "nowhere", "40%"}, 0.4F, "turned down"},
        {{"set-sink-volume", "nowhere", "15%"}, 0.15F, "a percent is a percent"},
        {{"set-sink-mute", "nowhere", "1"}, 0, "muted"},
        {{"set-sink-mute", "nowhere", "0"}, 0.15F, "no longer"},
        {{"set-sink-volume", "nowhere", "130%"}, 1, "louder than loud"},
        {{"load-module", "module-null-sink", "sink_name=other"}, 1, "another output appears"},
        {{"set-sink-volume", "other", "30%"}, 1, "which is not the default"},
        {{"set-default-sink", "other"}, 0.3F, "and now is"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        ASSERT_TRUE(SoundServer::control(c.command));
        EXPECT_TRUE(QTest::qWaitFor([&] { return session.outputVolume() == c.volume; }, 2000))
            << session.outputVolume();
    }
}

TEST_F(SoundServerTest, IsMissedAndFoundAgain)
{
    PulseAudioSession session;
    ASSERT_TRUE(SoundServer::control({"set-sink-volume", "nowhere", "40%"}));
    ASSERT_TRUE(QTest::qWaitFor([&] { return session.outputVolume() == 0.4F; }));
    EXPECT_TRUE(session.activate());

    server.stop();

    EXPECT_TRUE(QTest::qWaitFor([&] { return session.outputVolume() == 1; }));
    const auto refused = session.activate();
    ASSERT_FALSE(refused);
    EXPECT_FALSE(refused.error().message.empty());
    EXPECT_TRUE(QTest::qWaitFor([&] { return session.activate().has_value(); }))
        << "where there is no sound, none is missed";
    ASSERT_EQ(server.start(), "");
    ASSERT_TRUE(SoundServer::control({"set-sink-volume", "nowhere", "20%"}));
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return session.activate() && session.outputVolume() == 0.2F; }, 8000));
}

TEST_F(SoundServerTest, HearsAnUtteranceWhole)
{
    Recorder recorder;
    SpeechListener listener;
    QtSpeech speech;
    const auto voice = speech.makeSpeechSynthesizer();
    voice->setDelegate(&listener);
    const platform::Utterance utterance{"nous avons compris", "fr"};

    voice->speak(utterance);

    ASSERT_TRUE(listener.waitForEnd());
    EXPECT_EQ(listener.events.back().what, "finish");
    QTest::qWait(300);
    const std::atomic<bool> cancelled = false;
    const auto expected = EspeakVoice{}.synthesize(utterance, cancelled);
    ASSERT_TRUE(expected);
    const double seconds = static_cast<double>(expected->duration().count()) / 1000;
    EXPECT_NEAR(recorder.secondsOfSound(), seconds, 0.15 * seconds);
}

TEST_F(SoundServerTest, HearsNoMoreOfAStoppedUtterance)
{
    Recorder recorder;
    QtSpeech speech;
    const auto voice = speech.makeSpeechSynthesizer();
    voice->speak({"qu'il ou elle ou on ait compris", "fr", platform::kDefaultSpeechRate / 2});
    QTest::qWait(600);

    voice->stopSpeaking();

    QTest::qWait(1500);
    const double seconds = recorder.secondsOfSound();
    EXPECT_GT(seconds, 0.2);
    EXPECT_LT(seconds, 0.8);
}

} // namespace
} // namespace lumora::qt
