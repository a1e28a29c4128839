// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/speech/espeak_voice.h"

#include "qt/speech/espeak_phonemes.h"
#include "qt/speech/spoken_text.h"
#include "qt/speech/time_stretch.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <numbers>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace lumora::qt {
namespace {

using platform::kDefaultSpeechRate;
using Ranges = std::vector<std::pair<std::size_t, std::size_t>>;

Speech speak(const std::string& text, float rate = kDefaultSpeechRate)
{
    const std::atomic<bool> cancelled = false;
    auto speech = EspeakVoice{}.synthesize({text, "fr", rate}, cancelled);
    EXPECT_TRUE(speech) << speech.error().message;
    return speech.value_or(Speech{});
}

Ranges rangesOf(const Speech& speech)
{
    Ranges ranges;
    for (const auto& word : speech.words) {
        ranges.emplace_back(word.location, word.length);
    }
    return ranges;
}

double ratio(std::size_t longer, std::size_t shorter)
{
    return static_cast<double>(longer) / static_cast<double>(shorter);
}

TEST(SpokenText, LeavesOutBracketedEndings)
{
    struct Case {
        const char* written;
        const char* spoken;
        const char* why;
    };
    const Case cases[] = {
        {"je suis allé(e)", "je suis allé", "one ending"},
        {"vous êtes allé(e)(s)", "vous êtes allé", "two in a row"},
        {"nous sommes allé(e)s", "nous sommes allés", "a letter after it is heard"},
        {"dépris(es) ou non", "dépris ou non", "more letters, and a word after"},
        {"(que) je", "(que) je", "no ending of anything"},
        {"a (b)", "a (b)", "a word of its own"},
        {"allé(e", "allé(e", "never closed"},
        {"", "", "nothing"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(SpokenText({c.written, "fr"}).text(), c.spoken) << c.why;
    }
}

/// With the sounds of words, such as "0+2 ʒə, 3+4 pɛ".
platform::Utterance pronounced(const std::string& text, const std::string& words)
{
    platform::Utterance utterance{text, "fr"};
    std::istringstream input{words};
    platform::PronouncedWord word;
    for (char sign = 0; input >> word.location >> sign >> word.length >> word.ipa;) {
        if (word.ipa.back() == ',') {
            word.ipa.pop_back();
        }
        utterance.words.push_back(word);
    }
    return utterance;
}

TEST(EspeakVoice, IsHandedPhonemesAndAnswersWithThePlacesOfTheWords)
{
    struct Case {
        const char* text;
        const char* words;
        const char* handed;
        Ranges places;
        const char* why;
    };
    const Case cases[] = {
        {"il ou elle ou on va",
         "0+2 il, 3+2 u, 6+4 ɛl, 11+2 u, 14+2 ɔ̃, 17+2 va",
         "[[il]] [[u]] [[El]] [[u]] [[O~]] [[v'a]]",
         {{0, 2}, {3, 2}, {6, 4}, {11, 2}, {14, 2}, {17, 2}},
         "short words are stressed at the end alone"},
        {"nous avons été allé(e)s",
         "0+4 nuz, 5+5 avɔ̃z, 11+3 ete, 15+8 ale",
         "[[nuz]] [[av'O~z]] [[et'e]] [[al'e]]",
         {{0, 4}, {5, 5}, {11, 3}, {15, 8}},
         "characters and brackets"},
        {"j'aime", "0+2 ʒ, 2+4 ɛm", "[[Z'Em]]", {{0, 6}}, "one word in the mouth"},
        {"méfiez-vous", "0+6 mefje, 6+5 vu", "[[mefjev'u]]", {{0, 11}}, "and with a hyphen"},
        {" va", "1+2 va", " [[v'a]]", {{1, 2}}, "a space leads"},
        {"je paie, paye",
         "0+2 ʒə, 3+4 pɛ, 9+4 pɛj",
         "[[Z@-]] [[p'E]], [[p'Ej]]",
         {{0, 2}, {3, 4}, {9, 4}},
         "each of a double form is stressed"},
        {"que je suis",
         "0+3 kə, 4+2 ʒə, 7+4 sɥi",
         "[[k@-]] [[Z@-]] [[sy-'i]]",
         {{0, 3}, {4, 2}, {7, 4}},
         "a glide"},
        {"tu ħas été",
         "0+2 ty, 3+3 ħa, 7+3 ete",
         "[[ty]] ħas [[et'e]]",
         {{0, 2}, {3, 3}, {7, 3}},
         "a sound that the voice lacks"},
        {"été (e) là", "0+3 ete", "[[et'e]] (e) là", {{0, 3}, {5, 1}, {8, 2}}, "a text follows"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        auto utterance = pronounced(c.text, c.words);
        std::vector<std::int16_t> heard;
        EXPECT_EQ(SpokenText{utterance}.text(), c.handed);
        for (const auto voice : {platform::Voice::Woman, platform::Voice::Man}) {
            utterance.voice = voice;
            const std::atomic<bool> cancelled = false;
            const auto speech = EspeakVoice{}.synthesize(utterance, cancelled);
            ASSERT_TRUE(speech);
            EXPECT_EQ(rangesOf(*speech), c.places);
            EXPECT_NE(std::exchange(heard, speech->samples), speech->samples);
        }
    }
}

TEST(EspeakPhonemes, NameEverySoundOfTheRulesOfPronunciation)
{
    std::ifstream rows{LUMORA_ROWS};
    std::size_t count = 0;
    for (std::string line; std::getline(rows, line);) {
        std::istringstream fields{line};
        std::string field;
        for (int column = 0; column < 4 && std::getline(fields, field, '\t'); ++column) {
        }
        for (const char* sign : {" ", ",", "‿"}) {
            for (auto at = field.find(sign); at != std::string::npos; at = field.find(sign)) {
                field.erase(at, std::string{sign}.size());
            }
        }
        if (!line.starts_with('#') && !line.starts_with("tense\t")) {
            EXPECT_TRUE(espeakPhonemes(field, true)) << field;
            ++count;
        }
    }
    EXPECT_GT(count, 200U);
    EXPECT_EQ(espeakPhonemes("", true), std::nullopt);
    EXPECT_EQ(espeakPhonemes("ʁə", true), "r@-") << "nothing to stress";
}

TEST(EspeakVoice, ReportsEachWordWhereItIsWritten)
{
    struct Case {
        const char* text;
        Ranges words;
        const char* why;
    };
    const Case cases[] = {
        {"je suis allé", {{0, 2}, {3, 4}, {8, 4}}, "plain"},
        {"été prêt à être", {{0, 3}, {4, 4}, {9, 1}, {11, 4}}, "counted in characters"},
        {" va", {{1, 2}}, "a space leads"},
        {"il ou elle ou on aime",
         {{0, 2}, {3, 2}, {6, 4}, {11, 2}, {14, 2}, {17, 4}},
         "a pronoun that was split"},
        {"allé(e)(s) et venu(e)", {{0, 10}, {11, 2}, {14, 7}}, "endings count in their word"},
        {"je paie, je paye", {{0, 2}, {3, 4}, {9, 2}, {12, 4}}, "both of a double form"},
        {" ", {}, "nothing to say"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        const auto speech = speak(c.text);
        EXPECT_EQ(rangesOf(speech), c.words);
        EXPECT_TRUE(std::is_sorted(
            speech.words.begin(), speech.words.end(),
            [](const auto& left, const auto& right) { return left.sample < right.sample; }));
    }
}

TEST(EspeakVoice, TakesAsLongAsTheRateAsksFor)
{
    struct Case {
        float factor;
        double longer;
        double tolerance = 0.05;
    };
    // So little is left of fast speech that single vibrations count.
    const Case cases[] = {{0.75F, 1.333}, {0.5F, 2},    {0.4F, 2.5},   {0.25F, 4},
                          {0.1F, 10},     {0.001F, 10}, {2, 0.5, 0.1}, {1000, 175.0 / 450, 0.1}};
    for (const char* text : {"je vais", "qu'il ou elle ou on ait compris", "j'aime", "été"}) {
        const auto usual = speak(text);
        for (const auto& c : cases) {
            SCOPED_TRACE(text + std::string{" at "} + std::to_string(c.factor));
            const auto speech = speak(text, kDefaultSpeechRate * c.factor);
            EXPECT_NEAR(ratio(speech.samples.size(), usual.samples.size()), c.longer,
                        c.longer * c.tolerance);
            ASSERT_EQ(rangesOf(speech), rangesOf(usual));
            if (usual.words.size() > 1) {
                EXPECT_NEAR(ratio(speech.words.back().sample, speech.samples.size()),
                            ratio(usual.words.back().sample, usual.samples.size()), 0.1);
            }
        }
    }
}

TEST(EspeakVoice, SaysWhyItCannotSpeak)
{
    const std::atomic<bool> no = false;
    const auto unknown = EspeakVoice{}.synthesize({"je vais", "xx-none"}, no);
    ASSERT_FALSE(unknown);
    EXPECT_EQ(unknown.error().message, "No voice speaks xx-none");
    const std::atomic<bool> yes = true;
    EXPECT_FALSE(EspeakVoice{}.synthesize({"je vais", "fr"}, yes));
    EXPECT_TRUE(EspeakVoice{}.synthesize({"je vais", "fr"}, no)) << "and speaks again";
}

TEST(TimeStretch, KeepsThePitch)
{
    constexpr int kRate = 22050;
    constexpr double kPitch = 150;
    std::vector<std::int16_t> tone(kRate);
    for (std::size_t i = 0; i < tone.size(); ++i) {
        tone[i] = static_cast<std::int16_t>(
            8000 * std::sin(2 * std::numbers::pi * kPitch * static_cast<double>(i) / kRate));
    }
    const auto longer = stretched(tone, kRate, tone.size() * 2);
    const auto crossings = [](const std::vector<std::int16_t>& samples) {
        std::size_t count = 0;
        for (std::size_t i = 1; i < samples.size(); ++i) {
            count += (samples[i - 1] < 0) != (samples[i] < 0) ? 1U : 0U;
        }
        return count;
    };
    EXPECT_NEAR(ratio(longer.size(), tone.size()), 2, 0.05);
    EXPECT_NEAR(ratio(crossings(longer), crossings(tone)), 2, 0.1);
    EXPECT_TRUE(stretched({}, kRate, 100).empty());
}

} // namespace
} // namespace lumora::qt
