// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/verb.h"

#include "support/world.h"

#include <gtest/gtest.h>

namespace lumora {
namespace {

using support::World;

TEST(Verb, PicksTheTranslationByChoiceThenByDevice)
{
    data::Verb verb;
    verb.english = "english";
    verb.french = "french";
    verb.german = "german";
    verb.spanish = "spanish";
    verb.dutch = "dutch";
    verb.italian = "italian";
    verb.portuguese = "portuguese";

    const struct {
        const char* stored;
        const char* device;
        const char* expected;
    } cases[] = {
        {"en", "de-DE", "english"},       {"fr", "de-DE", "french"},
        {"de", "en-GB", "german"},        {"es", "de-DE", "spanish"},
        {"pt", "de-DE", "portuguese"},    {"it", "de-DE", "italian"},
        {"nl", "de-DE", "dutch"},         {"tr", "de-DE", ""},
        {"xx", "de-CH", "german"},        {"", "nl-BE", "dutch"},
        {nullptr, "pt-BR", "portuguese"}, {nullptr, "tr-TR", "english"},
        {nullptr, "ja-JP", "english"},    {nullptr, "fr", "french"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string{c.stored == nullptr ? "(none)" : c.stored} + " on " + c.device);
        World world;
        if (c.stored != nullptr) {
            world.settings.setValue(std::string{c.stored}, "translation_language");
        }
        world.device.languages = {c.device};

        EXPECT_EQ(verb.translation(world.settings, world.device), c.expected);
    }
}

} // namespace
} // namespace lumora
