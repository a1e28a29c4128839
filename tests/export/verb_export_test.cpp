// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "export/export_fixture.h"

#include "settings/setting_keys.h"

#include <nlohmann/json.hpp>

namespace lumora::exporting {
namespace {

/// Resources of a line each.
struct VerbExportTest : ExportFixture {
    VerbExportTest()
    {
        addResource("mustache.min.js", "library;");
        addResource("export_html.mustache", "<p>{{french}}</p>\n");
        addResource("export_txt.mustache", "{{{french}}}\n");
    }

    nlohmann::json exportedData()
    {
        exportVerb();
        auto script = world.scripts.scripts.back().at(1);
        const auto begin = script.find("`, ") + 3;
        return nlohmann::json::parse(script.substr(begin, script.size() - begin - 2));
    }
};

TEST_F(VerbExportTest, EvaluatesTheLibraryAndThenEachTemplateWithTheSameData)
{
    const auto renderings = exportVerb();

    ASSERT_TRUE(renderings && *renderings);
    EXPECT_EQ((*renderings)->html, "result 2");
    EXPECT_EQ((*renderings)->text, "result 3");
    ASSERT_EQ(world.scripts.scripts.size(), 1U);
    const auto& scripts = world.scripts.scripts.front();
    ASSERT_EQ(scripts.size(), 3U);
    EXPECT_EQ(scripts[0], "library;");
    const std::string html = "Mustache.render(`<p>{{french}}</p>\n`, ";
    const std::string text = "Mustache.render(`{{{french}}}\n`, ";
    EXPECT_TRUE(scripts[1].starts_with(html + "{\"")) << scripts[1];
    EXPECT_TRUE(scripts[1].ends_with("});"));
    EXPECT_EQ(scripts[2], text + scripts[1].substr(html.size()));
    EXPECT_EQ(scripts[1].find("\": "), std::string::npos) << "white space in the data";

    exportVerb();
    EXPECT_EQ(world.scripts.scripts.size(), 2U) << "a context is used for one export";
}

TEST_F(VerbExportTest, HandsOverNamesTitlesAndEveryListButTheInfinitive)
{
    verb.german = "lieben";
    verb.dutch = "beminnen";
    verb.indicatifPresent = {form("j'", "aime"), form("tu", "aimes")};
    verb.subjonctifPlusqueParfait = {form("que j'", "eusse aimé")};
    verb.infinitif = {form("", "aimer")};
    world.settings.setValue(std::string{"nl"}, settings::kTranslationLanguage);
    world.bundle.texts = {{"tense.ind", "Indikativ"}, {"tense.con.firstpast", "Vergangenheit"}};

    const auto data = exportedData();

    EXPECT_EQ(data.size(), 7U + 4 + 17 + 17);
    EXPECT_EQ(data.at("german"), "lieben");
    EXPECT_EQ(data.at("translated"), "beminnen");
    EXPECT_EQ(data.at("indicative"), "Indikativ");
    EXPECT_EQ(data.at("other"), "tense.other") << "a key without a text stands for itself";
    EXPECT_EQ(data.at("tense_con_firstpast"), "Vergangenheit");
    const auto present = nlohmann::json::parse(
        R"([{"pronoun":"j'","verb":"aime"},{"pronoun":"tu","verb":"aimes"}])");
    EXPECT_EQ(data.at("IndicatifPresent"), present);
    EXPECT_EQ(data.at("SubjonctifPlusqueParfait").at(0).at("verb"), "eusse aimé");
    EXPECT_EQ(data.at("Participe"), nlohmann::json::array());
    for (const char* key : {"dutch", "turkish", "Infinitif"}) {
        EXPECT_FALSE(data.contains(key)) << key;
    }
    for (const char* key :
         {"IndicatifPlusQueParfait", "ConditionnelPasse1reForme", "ConditionnelPasse2eForme",
          "Imperatif", "tense_other_participle", "tense_ind_pastfuture", "portuguese"}) {
        EXPECT_TRUE(data.contains(key)) << key;
    }
}

TEST_F(VerbExportTest, TakesFrenchTenseTitlesWhenTheyAreWantedButNeverForMoods)
{
    world.bundle.texts = {{"tense.sub.past", "Past"},
                          {"tense.sub.past_french", "Passé"},
                          {"tense.sub", "Subjunctive"},
                          {"tense.sub_french", "Subjonctif"}};
    for (const bool french : {false, true}) {
        world.settings.setValue(french, settings::kShowTranslated);
        const auto data = exportedData();
        EXPECT_EQ(data.at("tense_sub_past"), french ? "Passé" : "Past");
        EXPECT_EQ(data.at("subjunctive"), "Subjunctive");
    }
}

TEST_F(VerbExportTest, SaysWhichWayItFails)
{
    const std::string missing = "Unable to find mustache JS file\n";
    for (const char* name : support::kTemplates) {
        SCOPED_TRACE(name);
        const auto file = world.bundle.resources.at(name);
        const auto content = support::contentOf(file);

        world.bundle.resources.erase(name);
        world.console.str({});
        const auto none = exportVerb();
        ASSERT_TRUE(none);
        EXPECT_FALSE(*none);
        EXPECT_EQ(world.console.str(), missing);

        world.console.str({});
        world.bundle.resources[name] = world.folder / "gone";
        EXPECT_FALSE(exportVerb());
        world.bundle.resources[name] = world.folder.path();
        EXPECT_FALSE(exportVerb()) << "a folder is no text";
        addResource(name, "caf\xE9");
        const auto noText = exportVerb();
        ASSERT_FALSE(noText) << "Latin 1 is no text";
        EXPECT_NE(noText.error().message.find(name), std::string::npos);
        EXPECT_EQ(world.console.str(), "");

        addResource(name, content);
    }
    EXPECT_TRUE(world.scripts.scripts.empty());
}

TEST_F(VerbExportTest, GivesUpOnATextThatIsNoUtf8)
{
    verb.imperatif = {form("", "aim\xE9")};

    const auto none = exportVerb();

    ASSERT_TRUE(none);
    EXPECT_FALSE(*none);
    EXPECT_EQ(world.console.str(), "Unable to create json string\n");
    EXPECT_TRUE(world.scripts.scripts.empty());
}

TEST_F(VerbExportTest, EscapesTheSolidus)
{
    verb.indicatifPresent = {form("il/elle/on", "aime")};
    exportVerb();
    EXPECT_NE(world.scripts.scripts.at(0).at(1).find(R"("pronoun":"il\/elle\/on")"),
              std::string::npos);
}

} // namespace
} // namespace lumora::exporting
