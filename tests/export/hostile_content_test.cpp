// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "export/export_fixture.h"

#include <libxml/HTMLparser.h>

#include <algorithm>
#include <memory>
#include <random>
#include <sstream>
#include <string>
#include <vector>

// The real engine, the real library, and a page reader of its own.
namespace lumora::exporting {
namespace {

/// A page as a browser takes it apart.
struct Page {
    /// Elements, their attributes and where they end, in order.
    std::string structure;
    /// Texts that are not white space alone.
    std::vector<std::string> texts;
};

std::string textOf(const xmlChar* text)
{
    return text == nullptr ? std::string{} : reinterpret_cast<const char*>(text);
}

void take(const xmlNode* node, Page& page)
{
    for (; node != nullptr; node = node->next) {
        if (node->type == XML_TEXT_NODE) {
            auto text = textOf(node->content);
            if (text.find_first_not_of(" \n") != std::string::npos) {
                page.texts.push_back(std::move(text));
            }
            continue;
        }
        page.structure += "<" + std::to_string(node->type) + textOf(node->name);
        for (const auto* attribute = node->type == XML_ELEMENT_NODE ? node->properties : nullptr;
             attribute != nullptr; attribute = attribute->next) {
            page.structure +=
                " " + textOf(attribute->name) + "=" +
                textOf(attribute->children == nullptr ? nullptr : attribute->children->content);
        }
        take(node->type == XML_ELEMENT_NODE ? node->children : nullptr, page);
        page.structure += ">";
    }
}

Page read(const std::string& html)
{
    const std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)> document{
        htmlReadMemory(html.data(), static_cast<int>(html.size()), nullptr, "UTF-8",
                       HTML_PARSE_RECOVER | HTML_PARSE_NOERROR | HTML_PARSE_NOWARNING),
        &xmlFreeDoc};
    Page page;
    take(document->children, page);
    return page;
}

/// A tab stands for the blank of a piece.
std::vector<std::string> splitAtBlanks(const std::string& text)
{
    std::istringstream words{text};
    std::vector<std::string> pieces;
    for (std::string piece; std::getline(words, piece, ' ');) {
        std::replace(piece.begin(), piece.end(), '\t', ' ');
        pieces.push_back(piece);
    }
    return pieces;
}

struct HostileContentTest : RenderingFixture {
    /// Of a verb all of whose texts are this one.
    VerbRenderings exported(const std::string& text)
    {
        verb.french = text;
        verb.english = text;
        for (auto* forms : {&verb.indicatifPresent, &verb.subjonctifImparfait,
                            &verb.conditionnelPasse2eForme, &verb.imperatif, &verb.participe}) {
            *forms = {form(text, text), form(text, text)};
        }
        return render();
    }
};

TEST_F(HostileContentTest, NoTextOfAVerbBecomesPartOfThePageOrOfTheScript)
{
    const std::string plain = "plain";
    const auto expected = read(exported(plain).html);
    ASSERT_GT(std::count(expected.texts.begin(), expected.texts.end(), plain), 20);
    const auto pieces = splitAtBlanks(
        "<script>alert(1)</script> </title> </style> </td></tr></table> <img\tsrc=x> <!-- --> "
        "<![CDATA[ ]]> <?php &lt; &#60;script&#62; &amp \" ' ` ${world} {{french}} {{{french}}} "
        "{{/french}} {{=<%\t%>=}} \\ \\u003c \\` */ // \u2028 \u2029 javascript: \tonload=x\t /> < "
        "> "
        "\u202e \ufeff 😀 é");
    constexpr unsigned kSeed = 20260314;
    std::minstd_rand random{kSeed};
    for (std::size_t round = 0; round < 3 * pieces.size(); ++round) {
        // Each alone first, in the company of others then.
        std::string text = pieces[round % pieces.size()];
        while (round >= pieces.size() && random() % 4 != 0) {
            text += pieces[random() % pieces.size()];
        }
        text = "a" + text + "z";
        SCOPED_TRACE(text);

        const auto renderings = exported(text);

        const auto page = read(renderings.html);
        EXPECT_EQ(page.structure, expected.structure);
        auto texts = expected.texts;
        std::replace(texts.begin(), texts.end(), plain, text);
        EXPECT_EQ(page.texts, texts);
        EXPECT_THAT(renderings.text, testing::HasSubstr(text)) << "in the plain one as it is";
        ASSERT_FALSE(HasFailure());
    }
    EXPECT_EQ(world.console.str(), "");
}

} // namespace
} // namespace lumora::exporting
