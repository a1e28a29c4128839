// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "navigation/search_readings.h"

#include "detail/verb_detail_table_view_controller.h"
#include "navigation/home_view_controller.h"
#include "platform/screens/navigation_controller.h"
#include "settings/setting_keys.h"
#include "support/world.h"

#include <gmock/gmock.h>

namespace lumora {
namespace {

using navigation::HomeViewController;
using support::World;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::IsEmpty;

class SearchReadings : public testing::Test {
protected:
    /// "headword | detail | way" of each card.
    std::vector<std::string> cardsOf(const std::string& text) const
    {
        home->searchTextChanged(text);
        std::vector<std::string> cards;
        for (const auto& card : home->readings().cards()) {
            cards.push_back(card.headword + " | " + card.detail + " | " + card.kind);
        }
        return cards;
    }

    World world;
    std::shared_ptr<HomeViewController> home = world.load<HomeViewController>();
};

TEST_F(SearchReadings, StandAboveTheListOrInItsPlace)
{
    using Cards = std::vector<std::string>;
    const Cards kVais{"aller | tense.ind.present \u2013 je vais | "};
    const struct {
        const char* text;
        Cards whenFound;
        Cards whenNot;
    } cases[] = {
        // The list begins with it, or it is on the way there.
        {"aller", {}, {}},
        {"ALLER", {}, {}},
        {"all", {}, {}},
        {"vais", kVais, kVais},
        {"je vais", kVais, kVais},
        {"va",
         {"aller | tense.other.imperative \u2013 va | "},
         {"aller | tense.other.imperative \u2013 va | "}},
        {"go", {"aller | go | search.by_meaning"}, {"aller | go | search.by_meaning"}},
        // Guesses only where there is nothing else.
        {"alller", {}, {"aller | go | search.by_spelling"}},
        {"vè", {}, {}},
        {"demain tu vas au lit",
         {},
         {"aller | tense.ind.present \u2013 tu vas | search.by_sentence"}},
        {"qwx", {}, {}},
        {"%", {}, {}},
    };
    for (const auto& c : cases) {
        EXPECT_THAT(cardsOf(c.text), ElementsAreArray(c.whenNot)) << c.text;
        const bool nothing = home->searchResultsController()->verbs.empty();
        EXPECT_EQ(home->readings().replaceResults(), nothing) << c.text;
        EXPECT_EQ(home->readings().offersForms(), nothing) << c.text;
    }
    // The same texts where the list has begun with some verb.
    const auto& services = world.services();
    navigation::SearchReadings readings{services.bundle, services.settings, services.device,
                                        services.crashReporter};
    readings.queue = world.queue.get();
    const auto other = world.verb(1);
    for (const auto& c : cases) {
        readings.read(c.text, {std::string{c.text} == "aller" || std::string{c.text} == "ALLER"
                                   ? world.verb(3)
                                   : other});
        Cards cards;
        for (const auto& card : readings.cards()) {
            cards.push_back(card.headword + " | " + card.detail + " | " + card.kind);
        }
        EXPECT_THAT(cards, ElementsAreArray(c.whenFound)) << c.text;
        EXPECT_FALSE(readings.replaceResults() || readings.offersForms());
    }
}

TEST_F(SearchReadings, OpenTheVerbAtTheFormThatWasMeant)
{
    home->searchTextChanged("va");
    home->searchBarSearchButtonClicked();
    const auto detail = world.shownDetail();
    ASSERT_TRUE(detail);
    detail->loadViewIfNeeded();
    EXPECT_EQ(detail->selectedVerb->french, "aller");
    EXPECT_EQ(detail->verbTypeSegmentedControl.selected, 3);
    EXPECT_EQ(detail->openedPath(), (platform::IndexPath{1, 0}));
    detail->selectVerbTypes(0);
    EXPECT_EQ(detail->openedPath(), std::nullopt) << "another mood has no such form";

    // A result, and a verb by its meaning, open as ever.
    for (const char* text : {"aller", "go"}) {
        home->searchTextChanged(text);
        home->searchBarSearchButtonClicked();
        const auto plain = world.shownDetail();
        ASSERT_NE(plain, detail);
        plain->loadViewIfNeeded();
        EXPECT_EQ(plain->selectedVerb->french, "aller");
        EXPECT_EQ(plain->verbTypeSegmentedControl.selected, 0);
        EXPECT_EQ(plain->openedPath(), std::nullopt);
    }
    const auto steps = world.presenter.segues.size();
    for (const char* text : {"qwx", ""}) {
        home->searchTextChanged(text);
        home->searchBarSearchButtonClicked();
        home->didSelectReading(0);
    }
    EXPECT_EQ(world.presenter.segues.size(), steps) << "nothing to open";
}

TEST_F(SearchReadings, AreNeighboursOfWhatIsFound)
{
    world.settings.setValue("W", settings::kSearchFrom);
    EXPECT_THAT(cardsOf("va"), testing::SizeIs(1));
    home->searchBarSearchButtonClicked();
    const auto card = world.shownDetail();
    ASSERT_TRUE(card);
    EXPECT_EQ(card->sequence.neighbour(0)->french, "aller");
    EXPECT_EQ(card->sequence.neighbour(-1), nullptr);
    EXPECT_EQ(card->sequence.neighbour(1)->french, "\u00E9vanouir (s')");
    EXPECT_EQ(card->sequence.neighbour(2), nullptr);
    home->searchResultsController()->rowTapped({0, 0});
    EXPECT_EQ(world.shownDetail()->sequence.neighbour(-1)->french, "aller");
    // Not twice where the list has it as well.
    world.settings.setValue(true, settings::kIncludeConjugations);
    home->searchTextChanged("vai");
    home->searchTextChanged("vais");
    home->searchBarSearchButtonClicked();
    EXPECT_EQ(world.shownDetail()->sequence.neighbour(0)->french, "aller");
    EXPECT_EQ(world.shownDetail()->sequence.neighbour(1), nullptr);
}

TEST_F(SearchReadings, LeadToTheOptionThatFindsTheForm)
{
    EXPECT_THAT(cardsOf("vais"), testing::SizeIs(1));
    home->showFormsOption();
    auto& stack =
        dynamic_cast<platform::NavigationController&>(*world.presenter.segues.back().destination);
    auto& options =
        dynamic_cast<navigation::OptionsTableViewController&>(*stack.topViewController());
    options.loadViewIfNeeded();
    options.viewWillAppear();
    ASSERT_TRUE(options.firstRow);
    EXPECT_EQ(options.cellForRow(*options.firstRow).text, "settings.includeconjugations");

    options.switchToggled(*options.firstRow, true);
    EXPECT_TRUE(home->readings().replaceResults()) << "until the options close";
    home->optionsClosed(options.fieldsChanged);
    EXPECT_FALSE(home->readings().replaceResults());
    EXPECT_FALSE(home->readings().offersForms());
    ASSERT_THAT(home->readings().cards(), testing::SizeIs(1));
    EXPECT_EQ(home->readings().cards()[0].verb, home->searchResultsController()->verbs.at(0))
        << "one verb, one star";
    EXPECT_THAT(cardsOf("qwx"), IsEmpty());
    EXPECT_FALSE(home->readings().offersForms()) << "it is on already";

    home->showOptions();
    auto& next =
        dynamic_cast<platform::NavigationController&>(*world.presenter.segues.back().destination);
    EXPECT_FALSE(
        dynamic_cast<navigation::OptionsTableViewController&>(*next.topViewController()).firstRow);
}

TEST_F(SearchReadings, AreNoneAndALineInTheLogWhereTheFileIsDamaged)
{
    world.execute("DROP TABLE conjugation");
    world.clock.advance(std::chrono::seconds{1});
    EXPECT_THAT(cardsOf("suis"), IsEmpty());
    EXPECT_THAT(world.crashReporter.lines, testing::Contains(HasSubstr("text may mean")));
    EXPECT_TRUE(home->readings().replaceResults());
}

} // namespace
} // namespace lumora
