// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "conjugator/model_table.h"

#include "conjugator/text_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace lumora::conjugator {
namespace {

constexpr auto kSound = "aimer|ends|er\n"
                        "aimer|present|e es e ons ez ent\n"
                        "aimer|past|a\n"
                        "aimer|participle|é\n";

/// Columns are divided by "|" here, and "^" marks an ending.
ModelTable tableOf(std::string text)
{
    text = "model|part|forms\n" + text;
    std::replace(text.begin(), text.end(), '|', '\t');
    std::replace(text.begin(), text.end(), '^', '|');
    return ModelTable(TextTable::parse(text, "models.tsv", ModelTable::header()));
}

std::string refusalOf(const std::string& text)
{
    try {
        tableOf(text);
    } catch (const TableError& error) {
        return error.what();
    }
    return "accepted";
}

TEST(ModelTable, RefusesModelsThatCannotBeConjugated)
{
    const std::string sound = kSound;
    const struct {
        std::string text;
        const char* refusal;
    } cases[] = {
        {sound, "accepted"},
        {sound + "placer|like|plaser\n",
         R"(models.tsv:6: model "placer" is like the unknown model "plaser")"},
        {sound + "a|like|b\nb|like|a\n",
         R"(models.tsv:6: model "a" descends from itself: a, b, a)"},
        {sound + "aimer|gerondif|ant\n", R"(models.tsv:6: unknown part "gerondif")"},
        {sound + "aimer|past|i\n", R"(models.tsv:6: "past" of model "aimer" stands twice)"},
        {sound + "aimer|imperative|e  ez\n", "models.tsv:6: empty form"},
        {sound + "aimer|future|er/\n", "models.tsv:6: empty form"},
        {sound + "aimer|imperative|^e^s ^ons ^ez\n", R"(models.tsv:6: "|e|s" has two endings)"},
        {sound + "aimer|imperative|e ons\n", "models.tsv:6: expected 3 forms, found 2"},
        {"aimer|past|o\n", R"(models.tsv:2: "o" does not end in a, i, in, u, ï or û)"},
        {"aimer|ends|er\naimer|past|a\n", R"(models.tsv:2: model "aimer" lacks "present")"},
        {"aimer|past|a\n", R"(models.tsv:2: model "aimer" lacks "ends")"},
        {sound + "faire|like|aimer\nfaire|present|ais ais ait aisons aites ont\n",
         R"(models.tsv:6: model "faire" lacks "subjunctive", which cannot be made from "ont")"},
        {"aimer|ends\n", "models.tsv:2: expected 3 columns, found 2"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(refusalOf(c.text), c.refusal);
    }
}

TEST(ModelTable, TellsWhichInfinitivesFit)
{
    const auto table =
        tableOf(std::string(kSound) + "céder|like|aimer\n"
                                      "céder|ends|é*er\n"
                                      "céder|present|è*e è*es è*e é*ons é*ez è*ent\n");

    EXPECT_EQ(table.misfit("aimer", "parler"), "");
    EXPECT_EQ(table.misfit("aimer", "finir"),
              R"("finir" does not end in "er" as model "aimer" asks)");
    EXPECT_EQ(table.misfit("céder", "léguer"), "");
    EXPECT_EQ(table.misfit("céder", "créer"),
              R"("créer" does not end in "é*er" as model "céder" asks)");
    EXPECT_EQ(table.misfit("céder", "exténuer"),
              R"("exténuer" does not end in "é*er" as model "céder" asks)");
    EXPECT_EQ(table.misfit("céder", "peser"),
              R"("peser" does not end in "é*er" as model "céder" asks)");
}

} // namespace
} // namespace lumora::conjugator
