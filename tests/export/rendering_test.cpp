// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "export/export_fixture.h"

namespace lumora::exporting {
namespace {

using testing::HasSubstr;
using testing::Not;

using RenderingTest = RenderingFixture;

TEST_F(RenderingTest, TextsArriveUnchanged)
{
    addResource("export_txt.mustache", "{{#Imperatif}}<{{{pronoun}}}|{{{verb}}}>{{/Imperatif}}");
    for (const std::string& text : std::initializer_list<std::string>{
             "j'", "il/elle/on", "a\"b", R"(a\b)", R"(\u0041 \n \/)", "`", "${alert(1)}",
             "`, {}); throw 1; //", "a\u2028b\u2029c", "line\nand\ttab\r", "</script>",
             "{{french}} {{{french}}}", "été œuf 😀 e\u0301", std::string{"a\0b", 3}, "\x01\x7F"}) {
        SCOPED_TRACE(text);
        verb.imperatif = {form(text, "x"), form("", text)};
        EXPECT_EQ(render().text, "<" + text + "|x><|" + text + ">");
    }
    EXPECT_EQ(world.console.str(), "");
}

TEST_F(RenderingTest, ATemplateThatBreaksTheScriptIsRenderedAsTheWordUndefined)
{
    struct {
        const char* html;
        const char* why;
    } cases[] = {
        {"a ` b", "the backtick ends the template"},
        {"${missing}", "an expression, and of an unknown name"},
        {"{{#french}}", "Mustache itself throws"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        world.console.str({});
        addResource("export_html.mustache", c.html);
        addResource("export_txt.mustache", "{{french}}");

        const auto renderings = render();

        EXPECT_EQ(renderings.html, "undefined");
        EXPECT_EQ(renderings.text, "aimer") << "the other one is not touched";
        EXPECT_TRUE(world.console.str().starts_with("JS Error: ")) << world.console.str();
    }
}

TEST_F(RenderingTest, ShippedTemplatesSuitTheScript)
{
    for (const char* name : {"export_html.mustache", "export_txt.mustache"}) {
        const auto content = support::contentOf(share / name);
        EXPECT_THAT(content, HasSubstr("{{#SubjonctifPlusqueParfait}}"));
        EXPECT_THAT(content, Not(HasSubstr("`")));
        EXPECT_THAT(content, Not(HasSubstr("${")));
        EXPECT_THAT(content, Not(HasSubstr("\\"))) << "the script would take it for an escape";
    }
}

TEST_F(RenderingTest, PlainTextReadsAsFrenchIsWritten)
{
    verb.indicatifPresent = {form("j'", "aime"), form("il/elle/on", "aime")};
    verb.subjonctifPasse = {form("que je m'", "en aille"), form("que je me", "sois")};
    verb.imperatif = {form("", "aime")};
    world.bundle.texts = {{"tense.ind", "Mode de l'indicatif"}};

    const auto text = render().text;

    EXPECT_TRUE(text.starts_with("aimer (love)\n\n")) << text;
    for (const char* line :
         {"    j'aime\n", "    il/elle/on aime\n", "    que je m'en aille\n",
          "    que je me sois\n", "    aime\n", "=== Mode de l'indicatif ===\n"}) {
        EXPECT_THAT(text, HasSubstr(line));
    }
    EXPECT_THAT(text, HasSubstr("tense.other.participle\n    –\n")) << "an empty tense";
    EXPECT_THAT(text, Not(HasSubstr("&")));
    EXPECT_THAT(text, Not(HasSubstr("{{")));
}

TEST_F(RenderingTest, ThePageNeedsNothingFromOutside)
{
    const auto html = render().html;
    for (const char* link : {"http", "src=", "href", "url(", "@import"}) {
        EXPECT_THAT(html, Not(HasSubstr(link))) << link;
    }
    EXPECT_THAT(html, HasSubstr("<p>love</p>"));
    world.settings.setValue(std::string{"tr"}, "translation_language");
    EXPECT_THAT(render().html, Not(HasSubstr("<p>")));
}

} // namespace
} // namespace lumora::exporting
