// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "detail/verb_guide.h"

#include "data/verb_reader.h"
#include "detail/verb_detail_table_view_controller.h"
#include "detail/verb_page.h"
#include "lists/verb_list_table_view_controller.h"
#include "platform/screens/navigation_controller.h"
#include "settings/view_memory.h"
#include "support/world.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lumora::detail {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

/// On the shipped database; a text is its key.
struct Guide : testing::Test {
    support::World world;
    std::unique_ptr<platform::DatabaseQueue> queue = platform::DatabaseQueue::open(LUMORA_VERBS_DB);

    /// The first of that name, with its forms.
    data::VerbPtr verb(const std::string& french) const
    {
        const auto ids =
            support::rowsOf(*queue, "SELECT min(_id) FROM verb WHERE french = '" + french + "'");
        data::VerbPtr verb;
        queue->inDatabase([&](platform::Database& database) {
            verb = *data::readVerb(database, std::stoll(ids.at(0)));
            data::loadConjugations(database, *verb);
        });
        return verb;
    }

    Guide() { world.bundle.texts["text.colon"] = ": "; }

    VerbGuide guide(const data::Verb& verb)
    {
        return {
            verb, queue.get(), {world.bundle, world.settings, world.device}, world.crashReporter};
    }

    /// "label: text", or the names of the verbs that are led to.
    std::vector<std::string> card(const std::string& french)
    {
        std::vector<std::string> lines;
        const auto read = verb(french);
        for (const auto& line : guide(*read).card()) {
            lines.push_back(line.label + ": " + line.text);
            for (const auto& link : line.links) {
                lines.back() += &link == &line.links.front() ? link.title : ", " + link.title;
            }
        }
        return lines;
    }
};

TEST_F(Guide, TheCardTellsWhatIsPeculiarToAVerb)
{
    EXPECT_THAT(card("agir"),
                ElementsAre("card.infinitive: agir", "card.infinitive.past: avoir agi",
                            "card.group: card.group.2", "card.like: finir",
                            "card.auxiliary: avoir: card.participle.invariable",
                            "card.use: card.use.2", "card.pronominal: agir (s')",
                            "card.alike: choisir, définir, établir, fournir, grandir"));

    const struct {
        const char* verb;
        std::vector<std::string> lines;
    } cases[] = {
        {"aller",
         {"card.infinitive.past: être allé(e)(s)", "card.auxiliary: être: card.participle.etre",
          "card.use: card.use.1", "card.pronominal: aller (s'en)"}},
        {"aller (s''en)",
         {"card.notes: card.trait.pronominal; card.trait.en", "card.plain: aller"}},
        {"parler", {"card.auxiliary: avoir: card.participle.avoir"}},
        {"plaire (se)", {"card.auxiliary: être: card.participle.invariable"}},
        {"haïr", {"card.notes: card.trait.aspirated"}},
        {"falloir",
         {"card.notes: card.trait.impersonal; card.trait.defective",
          "card.unused: tense.other.imperative"}},
        {"résulter",
         {"card.auxiliary: être, avoir: card.participle.both",
          "card.notes: card.trait.defective; card.third_person"}},
        {"gésir",
         {"card.used_only: tense.ind.present, tense.ind.imperfect, tense.other.participle"}},
        {"frire",
         {"card.unused: tense.ind.present (nous, vous, ils), tense.ind.imperfect, "
          "tense.ind.simplepast, tense.sub.present, tense.sub.imperfect"}},
        {"ester", {"card.notes: card.trait.defective; card.infinitive_only"}},
        {"sortir", {"card.homograph: sortir (take out, bring out, release)"}},
    };
    for (const auto& [name, lines] : cases) {
        const auto found = card(name);
        for (auto line : lines) {
            EXPECT_THAT(found, Contains(line)) << name;
        }
    }
    EXPECT_THAT(card("partir"),
                Contains(AllOf(StartsWith("card.alike: "), Not(HasSubstr("sentir")))))
        << "which has another auxiliary";
    EXPECT_THAT(card("gésir"), Not(Contains(StartsWith("card.auxiliary"))))
        << "it has no compound tense";
    EXPECT_THAT(card("ester"), Not(Contains(StartsWith("card.unused"))));
    EXPECT_THAT(card("aller"), AllOf(Not(Contains(StartsWith("card.like"))),
                                     Not(Contains(StartsWith("card.notes")))));
}

TEST_F(Guide, WithoutFactsTheCardTellsWhatTheFormsTell)
{
    queue = std::move(world.queue);
    EXPECT_THAT(card("aller"),
                ElementsAre("card.used_only: tense.ind.present, tense.other.imperative"));
    const auto aller = verb("aller");
    EXPECT_EQ(guide(*aller).summary(), "");
    queue->inDatabase([](platform::Database& database) {
        ASSERT_TRUE(database.executeUpdate("DROP TABLE verb_facts", {}));
    });
    EXPECT_EQ(guide(*aller).summary(), "");
    EXPECT_THAT(world.crashReporter.lines,
                ElementsAre("An error occurred when reading what is known of a verb: no such "
                            "table: verb_facts (1)"));
}

TEST_F(Guide, TheSheetOfAFormNamesItAndLeadsToItsOtherPlaces)
{
    const auto parler = verb("parler");
    const auto sheet = guide(*parler).sheet({0, 0, 0});
    ASSERT_TRUE(sheet);
    EXPECT_EQ(sheet->row, "je parle");
    EXPECT_EQ(sheet->form, "parle");
    EXPECT_EQ(sheet->ipa, "ʒə paʁl");
    EXPECT_EQ(sheet->tense.title, "tense.ind.present");
    EXPECT_EQ(sheet->tense.otherTitle, "tense.ind.present_french");
    EXPECT_EQ(sheet->person, "person.1.singular");
    std::vector<std::string> others;
    for (const auto& [place, row, tense] : sheet->others) {
        EXPECT_EQ(formAt(*parler, place)->verb, "parle");
        others.push_back(row + ", " + tense);
    }
    EXPECT_THAT(others,
                ElementsAre("il/elle/on parle, tense.ind.present",
                            "que je parle, tense.sub.present",
                            "qu'il/elle/on parle, tense.sub.present",
                            "parle, tense.other.imperative, person.2.singular, hint.present"));

    const std::pair<RowPlace, const char*> commands[] = {
        {{3, 0, 1}, "person.1.plural, hint.present"},
        {{3, 0, 5}, "person.2.plural, hint.past"},
        {{3, 1, 2}, "hint.past, hint.feminine"},
    };
    for (const auto& [place, person] : commands) {
        EXPECT_EQ(guide(*parler).sheet(place)->person, person);
    }

    const auto payer = verb("payer");
    EXPECT_EQ(guide(*payer).sheet({0, 0, 0})->others.size(), 4U) << "by each of two spellings";
    for (const RowPlace nowhere : {RowPlace{0, 0, 6}, {0, 8, 0}, {4, 0, 0}, {0, 0, -1}}) {
        EXPECT_FALSE(guide(*parler).sheet(nowhere));
    }
}

TEST_F(Guide, ATenseIsExplainedWithAnExample)
{
    world.bundle.texts["tense.sub.present.example"] = "Il faut qu’il vienne.\nHe must come.";
    world.bundle.texts["tense.ind.present.example"] = "Il pleut.";
    const auto parler = verb("parler");
    const auto note = guide(*parler).note(1, 0);
    ASSERT_TRUE(note);
    EXPECT_EQ(note->use, "tense.sub.present.use");
    EXPECT_EQ(note->example, "Il faut qu’il vienne.");
    EXPECT_EQ(note->translation, "He must come.");
    EXPECT_EQ(guide(*parler).note(0, 0)->translation, "") << "in French itself";
    EXPECT_FALSE(guide(*parler).note(3, 2));
}

/// From verb to verb, on a stack as a window has it.
struct Steps : testing::Test {
    using Screen = VerbDetailTableViewController;

    support::World world;
    std::unique_ptr<platform::NavigationController> stack;

    Screen& top() const { return dynamic_cast<Screen&>(*stack->topViewController()); }

    void openSecondRow()
    {
        const auto list = world.load<lists::VerbListTableViewController>();
        list->rowTapped({0, 1});
        stack = std::make_unique<platform::NavigationController>(world.shownDetail());
        stack->topViewController()->loadViewIfNeeded();
    }
};

TEST_F(Steps, NeighboursFollowTheListAndCountAsViews)
{
    openSecondRow();
    const auto& list = top().sequence;
    EXPECT_EQ(top().selectedVerb, list.neighbour(0));
    EXPECT_EQ(list.neighbour(-1)->french, "aller");
    EXPECT_EQ(list.neighbour(-2), nullptr);
    EXPECT_EQ(list.neighbour(0)->french, "avoir");
    top().selectVerbTypes(2);
    ASSERT_TRUE(settings::ViewMemory{world.viewMemory}.setMood(0)) << "as another page may";

    world.execute("DELETE FROM verb WHERE _id = 3");
    top().page().showNeighbour(-1);

    EXPECT_EQ(stack->viewControllers().size(), 1U) << "the way back leads to the list";
    EXPECT_EQ(top().selectedVerb->french, "aller") << "the list as it stood";
    EXPECT_EQ(top().verbTypeSegmentedControl.selected, 2);
    EXPECT_EQ(world.posted["VerbViewed"], 2);
    EXPECT_EQ(world.count("history WHERE verbid = 3"), 1);
    top().page().showNeighbour(-1);
    EXPECT_EQ(top().selectedVerb->french, "aller") << "there is none before the first";
    for (const char* name : {"avoir", "être", "évanouir (s')", "falloir", "pouvoir", "pouvoir"}) {
        top().page().showNeighbour(1);
        EXPECT_EQ(top().selectedVerb->french, name);
    }
}

TEST_F(Steps, ALinkCoversTheVerbThatItIsOn)
{
    openSecondRow();
    top().page().showRelated(2);
    ASSERT_EQ(stack->viewControllers().size(), 2U);
    EXPECT_EQ(top().selectedVerb->french, "être");
    EXPECT_EQ(top().selectedVerb->indicatifPresent.size(), 1U);
    EXPECT_EQ(top().sequence.neighbour(1), nullptr) << "it was not opened from a list";
    top().page().showRelated(99);
    EXPECT_EQ(stack->viewControllers().size(), 2U);
    stack->popViewController();
    EXPECT_EQ(top().selectedVerb->french, "avoir");
}

} // namespace
} // namespace lumora::detail
