// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace lumora::platform {

/// Words a minute.
inline constexpr float kDefaultSpeechRate = 175;

enum class Voice { Woman, Man };

/// How a word of an utterance sounds.
struct PronouncedWord {
    /// Where it is in the text, in characters.
    std::size_t location = 0;
    std::size_t length = 0;
    std::string ipa;
};

/// A text to speak, in the voice of a language.
struct Utterance {
    std::string text;
    /// A tag such as "fr".
    std::string language;
    /// Words a minute.
    float rate = kDefaultSpeechRate;
    /// In the order of the text, apart. Words of the text that are not among them
    /// are said as the language's rules of reading have it.
    std::vector<PronouncedWord> words{};
    Voice voice = Voice::Woman;
};

/// Hears how an utterance gets on, on the GUI thread. May speak and stop from
/// any of these calls.
class SpeechSynthesizerDelegate {
public:
    virtual ~SpeechSynthesizerDelegate() = default;
    /// The range, in characters of the utterance's text, sounds from now on.
    virtual void willSpeakRange(std::size_t location, std::size_t length,
                                const Utterance& utterance) = 0;
    virtual void didFinish(const Utterance& utterance) = 0;
    /// Stopped before its end, or could not be spoken.
    virtual void didCancel(const Utterance& utterance) = 0;
};

/// Speaks one utterance at a time. GUI thread only; no call waits for sound.
///
/// Whatever ends an utterance, its delegate hears nothing of it afterwards. The
/// destructor stops without telling the delegate.
class SpeechSynthesizer {
public:
    virtual ~SpeechSynthesizer() = default;
    /// Not owned; null: nobody.
    virtual void setDelegate(SpeechSynthesizerDelegate* delegate) = 0;
    /// Stops what is being spoken first.
    virtual void speak(const Utterance& utterance) = 0;
    /// At once; the delegate hears of the cancellation during the call. Nothing
    /// happens while nothing is spoken.
    virtual void stopSpeaking() = 0;
    virtual bool isSpeaking() const = 0;
};

/// Makes a synthesizer for each screen that speaks.
class SpeechSynthesizerFactory {
public:
    virtual ~SpeechSynthesizerFactory() = default;
    virtual std::unique_ptr<SpeechSynthesizer> makeSpeechSynthesizer() = 0;
};

} // namespace lumora::platform
