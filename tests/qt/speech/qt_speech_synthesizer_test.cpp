// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/speech/qt_speech_synthesizer.h"

#include "qt/speech/qt_speech.h"
#include "speech_listener.h"

#include <QTimer>

#include <algorithm>
#include <atomic>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace lumora::qt {
namespace {

using platform::kDefaultSpeechRate;
using support::SpeechListener;
using Texts = std::vector<std::string>;

/// On a machine without an output device.
class QtSpeechSynthesizerTest : public testing::Test {
protected:
    QtSpeechSynthesizerTest() { voice->setDelegate(&listener); }

    void speak(const std::string& text, float factor = 1)
    {
        voice->speak({text, "fr", kDefaultSpeechRate * factor});
    }

    SpeechListener listener;
    QtSpeech speech;
    std::unique_ptr<platform::SpeechSynthesizer> voice = speech.makeSpeechSynthesizer();
};

TEST_F(QtSpeechSynthesizerTest, ReportsWordsAndTheEndInRealTime)
{
    const std::atomic<bool> cancelled = false;
    for (const float factor : {1.0F, 0.25F}) {
        listener.events.clear();
        QElapsedTimer clock;
        clock.start();
        qint64 longestGap = 0;
        qint64 lastBeat = 0;
        QTimer heart;
        QObject::connect(&heart, &QTimer::timeout, [&] {
            longestGap = std::max(longestGap, clock.elapsed() - lastBeat);
            lastBeat = clock.elapsed();
        });
        heart.start(5);

        speak("tu es allé(e)", factor);

        EXPECT_TRUE(listener.events.empty()) << "nothing is heard during the call";
        qint64 begun = -1;
        listener.onEvent = [&](const auto&) { begun = begun < 0 ? clock.elapsed() : begun; };
        ASSERT_TRUE(listener.waitForEnd());
        EXPECT_EQ(listener.whats(), (Texts{"word 0+2", "word 3+2", "word 6+7", "finish"}));
        EXPECT_LT(begun, 1000);
        EXPECT_LT(longestGap, 500) << "the window waited";
        const auto expected = EspeakVoice{}.synthesize(
            {"tu es allé(e)", "fr", kDefaultSpeechRate * factor}, cancelled);
        ASSERT_TRUE(expected);
        const auto start = listener.events.front().milliseconds;
        const auto timeOf = [&](std::size_t sample) {
            return static_cast<int>(expected->timeOf(sample).count());
        };
        EXPECT_NEAR(listener.events[2].milliseconds - start, timeOf(expected->words[2].sample),
                    200);
        EXPECT_NEAR(listener.events[3].milliseconds - start, timeOf(expected->samples.size()), 200);
        EXPECT_FALSE(voice->isSpeaking());
        listener.onEvent = nullptr;
    }
}

TEST_F(QtSpeechSynthesizerTest, StopsAtOnceAndNothingFollows)
{
    // Before a sound is made, while the thread may be at it, and in the middle.
    for (const int milliseconds : {0, 1, 200}) {
        SCOPED_TRACE(milliseconds);
        listener.events.clear();
        speak("qu'il ou elle ou on ait compris", 0.5F);
        EXPECT_TRUE(voice->isSpeaking());
        if (milliseconds > 0) {
            QTest::qWait(milliseconds);
        }
        const auto heard = listener.events.size();

        voice->stopSpeaking();

        EXPECT_FALSE(voice->isSpeaking());
        ASSERT_EQ(listener.events.size(), heard + 1);
        EXPECT_EQ(listener.events.back().what, "cancel");
        voice->stopSpeaking();
        QTest::qWait(700);
        EXPECT_EQ(listener.events.size(), heard + 1);
    }
}

TEST_F(QtSpeechSynthesizerTest, ANewUtteranceEndsTheOldOne)
{
    speak("nous avons compris", 0.5F);
    QTest::qWait(150);
    speak("un");
    speak("tu vas");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !voice->isSpeaking(); }));

    const auto second = std::find_if(listener.events.begin(), listener.events.end(),
                                     [](const auto& event) { return event.what == "cancel"; });
    ASSERT_NE(second, listener.events.end());
    Texts rest;
    for (auto event = second; event != listener.events.end(); ++event) {
        rest.push_back(event->what + " of " + event->text);
    }
    EXPECT_EQ(rest, (Texts{"cancel of nous avons compris", "cancel of un", "word 0+2 of tu vas",
                           "word 3+3 of tu vas", "finish of tu vas"}));
}

TEST_F(QtSpeechSynthesizerTest, ADelegateMayDoAnythingInACallback)
{
    listener.onEvent = [&](const auto& event) {
        if (event.what == "finish" && event.text == "un") {
            speak("deux");
        } else if (event.what == "finish" && event.text == "deux") {
            speak("trois quatre");
        } else if (event.what == "word 6+6") {
            voice.reset();
        }
    };
    speak("un");
    ASSERT_TRUE(QTest::qWaitFor([&] { return voice == nullptr; }));
    QTest::qWait(300);
    EXPECT_EQ(listener.whats(),
              (Texts{"word 0+2", "finish", "word 0+4", "finish", "word 0+5", "word 6+6"}));
}

TEST_F(QtSpeechSynthesizerTest, WhatCannotBeSpokenIsCancelled)
{
    voice->speak({"je vais", "xx-none"});
    ASSERT_TRUE(listener.waitForEnd());
    EXPECT_EQ(listener.whats(), Texts{"cancel"});
    EXPECT_FALSE(voice->isSpeaking());
}

TEST_F(QtSpeechSynthesizerTest, ScreensSpeakOverOneEngineAndLeaveInSilence)
{
    SpeechListener otherListener;
    auto other = speech.makeSpeechSynthesizer();
    other->setDelegate(&otherListener);
    other->speak({"vous voilà", "fr"});
    speak("je vais");
    QTest::qWait(100);

    other.reset();

    ASSERT_TRUE(listener.waitForEnd());
    EXPECT_EQ(listener.whats(), (Texts{"word 0+2", "word 3+4", "finish"}));
    EXPECT_EQ(otherListener.whats(), Texts{"word 0+4"});
}

} // namespace
} // namespace lumora::qt
