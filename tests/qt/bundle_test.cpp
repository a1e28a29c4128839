// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/qt_bundle.h"

#include "detail/tense_table.h"
#include "qt/text_conversion.h"
#include "qt/translations.h"
#include "support/temporary_folder.h"

#include <QFile>
#include <QXmlStreamReader>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>

#include <gtest/gtest.h>

namespace lumora::qt {
namespace {

/// The texts of a translation file by their ids.
std::map<std::string, std::string> textsOf(const QString& language)
{
    QFile file{QStringLiteral(LUMORA_TRANSLATIONS "/lumora_%1.ts").arg(language)};
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    std::map<std::string, std::string> texts;
    QXmlStreamReader reader{&file};
    std::string id;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QLatin1String("message")) {
            id = toUtf8(reader.attributes().value(QLatin1String("id")).toString());
        } else if (reader.isStartElement() && reader.name() == QLatin1String("translation")) {
            EXPECT_TRUE(texts.emplace(id, toUtf8(reader.readElementText())).second) << id;
        }
    }
    EXPECT_FALSE(reader.hasError());
    return texts;
}

TEST(Translations, BothLanguagesHaveEveryKeyAndFrenchNamesAreFrenchInBoth)
{
    const auto english = textsOf(QStringLiteral("en"));
    const auto french = textsOf(QStringLiteral("fr"));
    for (const auto& [key, text] : english) {
        SCOPED_TRACE(key);
        EXPECT_FALSE(text.empty());
        ASSERT_TRUE(french.contains(key));
        EXPECT_FALSE(french.at(key).empty());
        if (key.ends_with("_french")) {
            EXPECT_EQ(text, french.at(key));
        }
    }
    EXPECT_EQ(english.size(), french.size());
    for (int segment = 0; segment < detail::kMoodCount; ++segment) {
        for (const auto& block : detail::blocksOfSegment(segment)) {
            const std::string key{block.titleKey};
            EXPECT_TRUE(english.contains(key)) << key;
            EXPECT_TRUE(english.contains(key + "_french")) << key;
        }
    }
}

/// Every text literal of the sources that has the form of a key.
std::set<std::string> keysInSources()
{
    static const std::regex kKey{R"~("([a-z][a-zA-Z]*(\.[a-zA-Z_]+)*)")~"};
    std::set<std::string> keys;
    for (const auto& entry : std::filesystem::recursive_directory_iterator{LUMORA_SOURCES}) {
        const auto extension = entry.path().extension();
        if (extension != ".cpp" && extension != ".qml") {
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
    const auto texts = textsOf(QStringLiteral("en"));
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
        const bool built = family == "button." && literals.contains(asked.substr(family.size()));
        EXPECT_TRUE(built || literals.contains(asked)) << "nobody asks for " << key;
    }
    for (const auto& literal : literals) {
        const bool isKey = literal.find('.') != std::string::npos &&
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

TEST(QtBundle, ReadsFactsAndFindsResources)
{
    const support::TemporaryFolder folder;
    std::ofstream{folder / "bundle.json"} << R"({"CFBundleShortVersionString": "1.2", "n": 3})";
    std::ofstream{folder / "verbs.db"} << "x";
    const QtBundle bundle{folder.path()};

    EXPECT_EQ(bundle.infoValue("CFBundleShortVersionString"), "1.2");
    EXPECT_EQ(bundle.infoValue("n"), std::nullopt);
    EXPECT_EQ(bundle.pathForResource("verbs", "db"), folder / "verbs.db");
    EXPECT_EQ(bundle.pathForResource("verbs", "txt"), std::nullopt);
}

} // namespace
} // namespace lumora::qt
