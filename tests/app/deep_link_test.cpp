// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/deep_link.h"

#include <gtest/gtest.h>

namespace lumora::app {
namespace {

TEST(DeepLink, NamesAVerbOrNothing)
{
    const struct {
        const char* link;
        std::optional<std::string> infinitive;
        const char* why;
    } cases[] = {
        {"lumora://verb/aller", "aller", "plain"},
        {"LUMORA://Verb/aller", "aller", "scheme and host in any case"},
        {"lumora://verb/%C3%AAtre", "être", "encoded"},
        {"lumora://verb/%c3%aatre/", "être", "small digits, closing slash"},
        {"lumora://verb/e%CC%82tre", "être", "decomposed"},
        {"lumora://verb/être?from=web#top", "être", "not encoded, and more behind it"},
        {"lumora://verb/%C3%A9vanouir%20(s')", "évanouir (s')", "with a space"},
        {"lumora://verb/", std::nullopt, "no name"},
        {"lumora://verb/%20", std::nullopt, "a blank name"},
        {"lumora://verb/aller/now", std::nullopt, "two names"},
        {"lumora://verbs/aller", std::nullopt, "another host"},
        {"lumora:verb/aller", std::nullopt, "no host"},
        {"https://verb/aller", std::nullopt, "another scheme"},
        {"lumora://verb/%C3", std::nullopt, "half a letter"},
        {"lumora://verb/all%e", std::nullopt, "half an escape"},
        {"lumora://verb/all%-1er", std::nullopt, "no hexadecimal digits"},
        {"lumora://verb/al%00ler", std::nullopt, "a control character"},
        {"", std::nullopt, "nothing"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        const auto link = DeepLink::parse(c.link);
        EXPECT_EQ(link ? std::optional{link->infinitive} : std::nullopt, c.infinitive);
    }
}

} // namespace
} // namespace lumora::app
