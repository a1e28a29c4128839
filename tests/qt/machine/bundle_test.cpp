// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/machine/qt_bundle.h"

#include "data/tense_table.h"
#include "qt/base/text_conversion.h"
#include "qt/base/translations.h"
#include "support/temporary_folder.h"

#include <QFile>
#include <QXmlStreamReader>

#include <filesystem>
#include <map>
#include <regex>
#include <set>

#include <gtest/gtest.h>

namespace lumora::qt {
namespace {

constexpr const char* kLanguages[] = {"en", "fr", "de", "nl", "es", "it", "pt"};
using Texts = std::map<std::string, std::string>;

/// The texts of a translation file by their ids.
Texts textsOf(const char* language)
{
    QFile file{QStringLiteral(LUMORA_TRANSLATIONS "/lumora_%1.ts").arg(QLatin1String{language})};
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    Texts texts;
    QXmlStreamReader reader{&file};
    std::string id;
    while (reader.readNext() != QXmlStreamReader::EndDocument && !reader.hasError()) {
        if (!reader.isStartElement()) {
            continue;
        }
        if (reader.name() == QLatin1String("message")) {
            id = toUtf8(reader.attributes().value(QLatin1String("id")).toString());
            EXPECT_FALSE(reader.attributes().hasAttribute(QLatin1String("numerus")))
                << id << ": the program asks for no plural forms";
        } else if (reader.name() == QLatin1String("translation")) {
            EXPECT_FALSE(reader.attributes().hasAttribute(QLatin1String("type")))
                << id << " is unfinished";
            EXPECT_TRUE(texts.emplace(id, toUtf8(reader.readElementText())).second) << id;
        }
    }
    EXPECT_FALSE(reader.hasError());
    return texts;
}

/// What is put into a text, in alphabetical order: the order of those with a
/// number is the language's.
std::multiset<std::string> placeholdersOf(const std::string& text)
{
    static const std::regex kPlaceholder{R"~(%\d*[@a-zA-Z0-9]|\{\w*\})~"};
    return {std::sregex_token_iterator{text.begin(), text.end(), kPlaceholder}, {}};
}

TEST(Translations, EveryLanguageHasEveryKeyWithTheSamePlaceholders)
{
    const auto files = std::filesystem::directory_iterator{LUMORA_TRANSLATIONS};
    EXPECT_EQ(std::count_if(begin(files), end(files),
                            [](const auto& file) { return file.path().extension() == ".ts"; }),
              std::ssize(kLanguages));
    const auto english = textsOf("en");
    for (const char* language : kLanguages) {
        const auto texts = textsOf(language);
        EXPECT_EQ(texts.size(), english.size()) << language;
        for (const auto& [key, text] : english) {
            SCOPED_TRACE(std::string{language} + " " + key);
            const auto found = texts.find(key);
            ASSERT_NE(found, texts.end());
            EXPECT_NE(found->second.find_first_not_of(" \n"), std::string::npos);
            EXPECT_EQ(placeholdersOf(found->second), placeholdersOf(text));
            // The same everywhere: names of tenses in French, and addresses.
            if (key.ends_with("_french") || key.ends_with(".url") || key == "support.email") {
                EXPECT_EQ(found->second, text);
            }
        }
    }
    EXPECT_TRUE(
        std::regex_match(english.at("support.email"), std::regex{"[\\w.]+@[\\w.]+\\.\\w+"}));
    for (int segment = 0; segment < data::kMoodCount; ++segment) {
        for (const auto& block : data::blocksOfSegment(segment)) {
            const std::string key{block.titleKey};
            EXPECT_TRUE(english.contains(key)) << key;
            EXPECT_TRUE(english.contains(key + "_french")) << key;
        }
    }
}

/// Every text literal of the sources that has the form of a key.
std::set<std::string> keysInSources()
{
    // Whole ones, and beginnings and ends that are put together.
    static const std::regex kKey{R"~(["'`](\.?[a-z][a-zA-Z]*(\.[a-zA-Z0-9_]+)*\.?)["'$])~"};
    std::set<std::string> keys;
    for (const auto& entry : std::filesystem::recursive_directory_iterator{LUMORA_SOURCES}) {
        const auto extension = entry.path().extension();
        // The libraries of the page have names of their own.
        if (entry.path().string().find("node_modules") != std::string::npos) {
            continue;
        }
        if (extension != ".cpp" && extension != ".qml" && extension != ".ts") {
            continue;
        }
        const auto content = support::contentOf(entry.path());
        for (std::sregex_iterator match{content.begin(), content.end(), kKey}, end; match != end;
             ++match) {
            // A file of that name is no text.
            if (!(*match)[1].str().ends_with(".json")) {
                keys.insert((*match)[1]);
            }
        }
    }
    return keys;
}

TEST(Translations, EveryKeyIsAskedForAndEveryKeyAskedForIsThere)
{
    const auto texts = textsOf("en");
    const auto literals = keysInSources();
    std::set<std::string> families;
    for (const auto& [key, text] : texts) {
        families.insert(key.substr(0, key.find('.')));
        auto asked = key;
        if (asked.ends_with("_french")) {
            asked.resize(asked.size() - std::string_view{"_french"}.size());
        }
        // Buttons are named by their identifiers.
        const auto family = asked.substr(0, asked.find('.') + 1);
        const auto last = asked.rfind('.') + 1;
        const bool built =
            (family == "button." && literals.contains(asked.substr(family.size()))) ||
            literals.contains(asked.substr(0, last)) ||
            (last > 1 && literals.contains(asked.substr(last - 1)) &&
             literals.contains(asked.substr(0, last - 1)));
        EXPECT_TRUE(built || literals.contains(asked)) << "nobody asks for " << key;
    }
    for (const auto& literal : literals) {
        const bool isKey = literal.find('.') != std::string::npos && !literal.ends_with('.') &&
                           families.contains(literal.substr(0, literal.find('.')));
        EXPECT_TRUE(!isKey || texts.contains(literal)) << "there is no text for " << literal;
    }
}

TEST(QtBundle, SpeaksTheFirstLanguageThatItHas)
{
    const support::TemporaryFolder folder;
    const QtBundle bundle{folder.path()};
    struct {
        QStringList languages;
        const char* list;
    } cases[] = {
        {{"fr-CH", "en"}, "Verbes"},
        {{"en-GB", "fr"}, "Verbs"},
        {{"sv", "fr_FR"}, "Verbes"},
        {{"nl-BE", "fr"}, "Werkwoorden"},
        {{"pt_BR"}, "Verbos"},
        {{"sv"}, "Verbs"},
        {{}, "Verbs"},
    };
    for (const auto& c : cases) {
        const Translations translations{c.languages};
        EXPECT_EQ(bundle.textForKey("tabs.list"), c.list) << toUtf8(c.languages.join(u' '));
        EXPECT_EQ(bundle.textForKey("no.such.key"), std::nullopt);
    }
    EXPECT_EQ(bundle.textForKey("tabs.list"), std::nullopt) << "nothing installed any more";
}

} // namespace
} // namespace lumora::qt
