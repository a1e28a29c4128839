// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "detail/verb_detail_table_view_controller.h"
#include "detail/verb_page.h"
#include "support/world.h"

#include <optional>
#include <string>

#include <gtest/gtest.h>

namespace lumora {
namespace {

using detail::VerbDetailTableViewController;
using support::FakeSpeechSynthesizer;
using support::World;

class Pronunciation : public testing::Test {
protected:
    Pronunciation()
    {
        detail.queue = world.queue.get();
        detail.selectedVerb = world.verb(3);
        detail.loadViewIfNeeded();
    }

    FakeSpeechSynthesizer& voice() { return *world.speech.synthesizers.at(0); }
    std::size_t spokenCount() const
    {
        return world.speech.synthesizers.empty() ? 0 : world.speech.synthesizers[0]->spoken.size();
    }
    void say(const std::string& pronoun, const std::string& form, const std::string& type = {})
    {
        auto row = std::make_shared<data::Conjugation>();
        row->type = type;
        row->pronoun = pronoun;
        row->verb = form;
        detail.selectedVerb->indicatifPresent = {row};
        detail.accessoryButtonTapped({1, 0});
    }
    float ringOfRow(platform::IndexPath path)
    {
        return ring(std::get<platform::PlayControl>(detail.cellForRow(path).control));
    }
    float ringOfLine(int item, std::size_t line)
    {
        return ring(detail.cellForItem(item).rows.at(line).control);
    }

    World world;
    VerbDetailTableViewController detail{world.services()};

private:
    static float ring(const platform::PlayControl& control)
    {
        return dynamic_cast<const detail::CERoundProgressView&>(*control.indicator).progress();
    }
};

TEST_F(Pronunciation, SpeaksThePronounWithTheForm)
{
    const struct {
        const char* pronoun;
        const char* form;
        const char* spoken;
        const char* why;
    } cases[] = {
        {"j'", "aime", "j'aime", "elided: no space"},
        {"je", "vais", "je vais", "plain"},
        {"il/elle/on", "aime", "il ou elle ou on aime", "every slash"},
        {"que je m'", "avère", "que je m'avère", "elided at the end"},
        {"qu'il/elle/on", "ait", "qu'il ou elle ou on ait", "an apostrophe inside elides nothing"},
        {"", "va", " va", "without a pronoun the space stays"},
        {"je", "paie/paye", "je paie/paye", "slashes of the form stay"},
        {"nous", "sommes allé(e)s", "nous sommes allé(e)s", "the brackets are the voice's matter"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        say(c.pronoun, c.form);
        EXPECT_EQ(voice().spoken.back().text, c.spoken);
        EXPECT_EQ(voice().spoken.back().language, "fr");
    }
    EXPECT_EQ(world.speech.synthesizers.size(), 1U) << "one synthesizer for the screen";
}

TEST_F(Pronunciation, TheWordsCarryTheirSounds)
{
    world.execute("INSERT INTO verb_facts VALUES(4, 2, 'haïr', NULL, 'avoir', "
                  "'defective,aspirated', '', 2, 1)");
    const struct {
        std::int64_t verb;
        const char* pronoun;
        const char* form;
        const char* type;
        const char* words;
        const char* why;
    } cases[] = {
        {3, "il/elle/on", "va", "indicatifPresent",
         "0+2 il, 3+2 u, 6+4 ɛl, 11+2 u, 14+2 ɔ̃, 17+2 va", "every pronoun"},
        {3, "nous", "sommes allé(e)s", "indicatifPasseCompose", "0+4 nu, 5+6 sɔmz, 12+8 ale",
         "endings in brackets, counted in characters"},
        {3, "j'", "étais allé(e)", "indicatifPlusQueParfait", "0+2 ʒ, 2+5 etɛ, 8+7 ale",
         "an elided pronoun"},
        {3, "", "allant", "participe", "1+6 alɑ̃", "no pronoun"},
        {4, "nous", "haïssons", "indicatifPresent", "0+4 nu, 5+8 aisɔ̃", "no liaison"},
        {3, "nous", "haïssons", "indicatifPresent", "0+4 nuz, 5+8 aisɔ̃", "no such trait"},
        {3, "je", "vais", "a later tense", "", "read from the text"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        detail.selectedVerb->id = c.verb;
        say(c.pronoun, c.form, c.type);
        std::string words;
        for (const auto& word : voice().spoken.back().words) {
            words += (words.empty() ? "" : ", ") + std::to_string(word.location) + "+" +
                     std::to_string(word.length) + " " + word.ipa;
        }
        EXPECT_EQ(words, c.words);
    }
}

TEST_F(Pronunciation, TheChosenVoiceSpeaksFromTheNextRowOn)
{
    int redrawn = 0;
    detail.setOutletListener([&] { ++redrawn; });
    say("je", "vais");
    detail.page().chooseVoice(platform::Voice::Man);
    say("je", "vais");

    EXPECT_EQ(voice().spoken.front().voice, platform::Voice::Woman);
    EXPECT_EQ(voice().spoken.back().voice, platform::Voice::Man);
    EXPECT_EQ(redrawn, 1);
    EXPECT_EQ(world.viewMemory.flushes, 1);
    VerbDetailTableViewController next{world.services()};
    EXPECT_EQ(next.page().voice(), platform::Voice::Man);
}

TEST_F(Pronunciation, SlowlyIsAFactorOnTheChosenRateAndMovesTheRingOnShow)
{
    world.settings.setValue(0.5, "audio_speed");
    detail.page().saySlowly({0, 0, 1}, false);
    EXPECT_EQ(voice().spoken.back().text, "tu vas");
    EXPECT_FLOAT_EQ(voice().spoken.back().rate, platform::kDefaultSpeechRate * 0.5F * 0.6F);
    voice().reachWord(3, 3);
    EXPECT_GT(ringOfRow({1, 1}), 0);
    detail.page().saySlowly({0, 0, 1}, true);
    EXPECT_EQ(ringOfRow({1, 1}), 0) << "cut off";
    voice().reachWord(3, 3);
    EXPECT_GT(ringOfLine(0, 1), 0);
    detail.page().saySlowly({0, 0, 9}, false);
    EXPECT_EQ(spokenCount(), 2U) << "there is no such row";
}

TEST_F(Pronunciation, TheSettingIsAFactorOnTheDefaultRate)
{
    say("je", "vais");
    EXPECT_EQ(voice().spoken.back().rate, platform::kDefaultSpeechRate);
    const std::pair<platform::SettingValue, float> cases[] = {
        {std::int64_t{0}, 1}, {-0.5, 1},          {0.5, 0.5F}, {0.75, 0.75F}, {2.0, 2},
        {std::int64_t{1}, 1}, {std::string{}, 1}, {false, 1}};
    for (const auto& [speed, factor] : cases) {
        world.settings.setValue(speed, "audio_speed");
        say("je", "vais");
        EXPECT_EQ(voice().spoken.back().rate, platform::kDefaultSpeechRate * factor);
    }
}

TEST_F(Pronunciation, WarnsOfALowVolumeOnceADay)
{
    const double now = 1'700'000'000.25;
    const struct {
        float volume;
        std::optional<platform::SettingValue> warned;
        bool warns;
        const char* why;
    } cases[] = {
        {0.1F, std::nullopt, true, "never warned"},
        {0.149F, std::nullopt, true, "just below"},
        {0.15F, std::nullopt, false, "loud enough"},
        {1, now - 1e6, false, "loud, long after"},
        {0, now - 86400, false, "a day exactly"},
        {0, now - 86400.125, true, "more than a day; a float would not tell"},
        {0, std::int64_t{1'600'000'000}, true, "stored whole"},
        {0, now + 10, false, "the clock was set back"},
    };
    world.clock.now = now;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        world.presenter.alerts.clear();
        world.settings.removeValue("time_audio_warning");
        if (c.warned) {
            world.settings.setValue(*c.warned, "time_audio_warning");
        }
        world.audioSession.volume = c.volume;
        const auto before = spokenCount();

        say("je", "vais");

        EXPECT_EQ(spokenCount(), before + 1) << "the warning holds nothing up";
        ASSERT_EQ(world.presenter.alerts.size(), c.warns ? 1U : 0U);
        const auto stored = world.settings.objectForKey("time_audio_warning");
        if (c.warns) {
            EXPECT_EQ(stored, platform::SettingValue{now});
            const auto& [on, alert] = world.presenter.alerts.back();
            EXPECT_EQ(on, &detail);
            EXPECT_EQ(alert.title, std::nullopt);
            EXPECT_EQ(alert.message, "volume.low.warning");
            EXPECT_EQ(alert.actions.at(0).title, "common.ok");
        } else {
            EXPECT_EQ(stored, c.warned);
        }
    }
}

TEST_F(Pronunciation, TheRingRunsAheadOfTheWordsAndEmptiesAtTheEnd)
{
    say("il/elle", "était");
    // "il ou elle était" has 16 characters and one more byte.
    const std::pair<std::size_t, float> cases[] = {
        {0, 0.1F}, {1, 0.1F}, {6, 6 / 16.0F * 1.1F}, {11, 11 / 16.0F * 1.1F}, {16, 1}};
    for (const auto& [location, progress] : cases) {
        voice().reachWord(location, 2);
        EXPECT_FLOAT_EQ(ringOfRow({1, 0}), progress);
    }
    int invalidated = 0;
    detail.audioTimer = [&] { ++invalidated; };

    voice().reachEnd();

    EXPECT_EQ(ringOfRow({1, 0}), 0);
    EXPECT_EQ(invalidated, 1);
    EXPECT_FALSE(detail.audioTimer);
    EXPECT_NE(detail.currentAudioProgress, nullptr);
    EXPECT_EQ(voice().stops, 0);
}

TEST_F(Pronunciation, ASecondTapStopsTheFirst)
{
    detail.accessoryButtonTapped({1, 0});
    voice().reachWord(3, 4);
    EXPECT_GT(ringOfRow({1, 0}), 0.1F);
    int invalidated = 0;
    detail.audioTimer = [&] { ++invalidated; };

    detail.accessoryButtonTapped({1, 1});

    EXPECT_EQ(voice().stops, 1);
    EXPECT_EQ(invalidated, 1);
    EXPECT_EQ(ringOfRow({1, 0}), 0);
    EXPECT_EQ(voice().spoken.back().text, "tu vas");
    EXPECT_TRUE(voice().isSpeaking());
    voice().reachWord(0, 2);
    EXPECT_EQ(ringOfRow({1, 0}), 0);
    EXPECT_FLOAT_EQ(ringOfRow({1, 1}), 0.1F);

    voice().stopSpeaking();
    EXPECT_EQ(ringOfRow({1, 1}), 0) << "a cancelled utterance empties its ring";
    EXPECT_FALSE(voice().isSpeaking());
}

TEST_F(Pronunciation, ATenseIsReadRowByRowUntilSomethingStopsIt)
{
    std::string told;
    detail.setSpeechListener([&] { told += "[" + detail.spokenText() + "]"; });

    detail.page().playTense(0);
    voice().reachWord(3, 4);
    EXPECT_GT(ringOfRow({1, 0}), 0);
    voice().reachEnd();
    voice().reachWord(0, 2);
    EXPECT_EQ(ringOfRow({1, 0}), 0);
    EXPECT_GT(ringOfRow({1, 1}), 0) << "the row being read is the marked one";
    voice().reachEnd();
    EXPECT_EQ(told, "[je vais][tu vas][]");
    EXPECT_FALSE(voice().isSpeaking());

    detail.page().playTense(0);
    detail.stopSpeaking();
    EXPECT_EQ(ringOfRow({1, 0}), 0);
    detail.page().playTense(0);
    detail.accessoryButtonTapped({1, 1});
    voice().reachEnd();
    EXPECT_FALSE(voice().isSpeaking()) << "a tap ends the reading";
    detail.page().playTense(1);
    EXPECT_EQ(voice().spoken.size(), 5U) << "a tense without forms has nothing to read";
    EXPECT_EQ(detail.spokenText(), "");
}

TEST_F(Pronunciation, TableAndCollectionShowTheSameRing)
{
    detail.accessoryButtonTapped({1, 1});
    voice().reachWord(3, 3);
    EXPECT_GT(ringOfLine(0, 1), 0.1F);
    EXPECT_EQ(ringOfLine(0, 0), 0);
}

TEST_F(Pronunciation, AnotherMoodNeitherStopsTheSpeechNorShowsItsRing)
{
    detail.accessoryButtonTapped({1, 0});
    voice().reachWord(3, 4);

    detail.selectVerbTypes(3);

    EXPECT_TRUE(voice().isSpeaking());
    EXPECT_EQ(ringOfRow({1, 0}), 0) << "the imperative is not being spoken";
    EXPECT_EQ(ringOfLine(0, 0), 0);
    detail.selectVerbTypes(0);
    EXPECT_GT(ringOfRow({1, 0}), 0.1F);
    voice().reachEnd();
    EXPECT_EQ(ringOfRow({1, 0}), 0);
}

TEST_F(Pronunciation, ALineOfTheCollectionSpeaksWithItsOwnRing)
{
    detail.audioTapped(0, 1);

    EXPECT_EQ(world.console.str(), "Row 0, section: 0\n");
    EXPECT_EQ(voice().spoken.back().text, "tu vas");
    voice().reachWord(3, 3);
    EXPECT_GT(ringOfLine(0, 1), 0.1F);
    EXPECT_EQ(ringOfLine(0, 0), 0);
    detail.audioTapped(1, 0);
    EXPECT_EQ(world.console.str(), "Row 0, section: 0\nRow 1, section: 0\n");
    EXPECT_TRUE(voice().isSpeaking()) << "a square without forms changes nothing";
}

TEST_F(Pronunciation, ATapThatFindsNoFormDoesNothing)
{
    world.audioSession.volume = 0;
    for (const platform::IndexPath row : {platform::IndexPath{0, 0}, {1, 2}, {1, -1}, {9, 0}}) {
        detail.accessoryButtonTapped(row);
    }
    for (const auto& [item, line] : {std::pair{-1, 0}, {8, 0}, {0, 2}, {0, -1}, {0, 6}}) {
        detail.audioTapped(item, line);
    }
    detail.selectedVerb = nullptr;
    detail.accessoryButtonTapped({1, 0});
    detail.audioTapped(0, 0);

    EXPECT_EQ(spokenCount(), 0U);
    EXPECT_TRUE(world.presenter.alerts.empty());
    EXPECT_TRUE(world.audioSession.calls.empty());
}

TEST_F(Pronunciation, AFailingAudioSessionIsPrintedAndSpeechGoesOn)
{
    const struct {
        platform::Result<void> category;
        platform::Result<void> activation;
        const char* console;
        std::size_t calls;
    } cases[] = {
        {{}, {}, "", 2},
        {tl::unexpected{platform::Error{"Busy", 5}},
         {},
         "Error: Could not set audio category: Busy, {code = 5}\n",
         1},
        {{},
         tl::unexpected{platform::Error{"No server", 6}},
         "Error: Could not set audio category: No server, {code = 6}\n",
         2},
    };
    for (const auto& c : cases) {
        world.console.str({});
        world.audioSession.calls.clear();
        world.audioSession.categoryResult = c.category;
        world.audioSession.activateResult = c.activation;
        say("je", "vais");
        EXPECT_EQ(world.console.str(), c.console);
        EXPECT_EQ(world.audioSession.calls.size(), c.calls);
        EXPECT_TRUE(voice().isSpeaking());
    }
}

} // namespace
} // namespace lumora
