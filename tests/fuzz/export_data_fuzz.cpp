// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/conjugation.h"
#include "data/verb.h"
#include "export/export_data.h"
#include "fuzz/fuzz.h"
#include "support/world.h"
#include "text/text.h"

#include <fuzzer/FuzzedDataProvider.h>
#include <nlohmann/json.hpp>

using namespace lumora;

/// Any texts as a verb's: the data are refused because a text is no UTF-8, or
/// they are JSON that holds every text as it was, and a script's literal too.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static support::World world;
    const fuzz::TimeLimit limit;
    FuzzedDataProvider source{data, size};
    world.settings.setValue(source.ConsumeBool(), "ShowTranslated");
    data::Verb verb;
    verb.french = source.ConsumeRandomLengthString();
    verb.english = source.ConsumeRandomLengthString();
    while (source.remaining_bytes() > 0 && verb.participe.size() < 8) {
        verb.participe.push_back(std::make_shared<const data::Conjugation>(
            data::Conjugation{source.ConsumeRandomLengthString(),
                              source.ConsumeRandomLengthString(), "participe", 0}));
    }
    bool wellFormed = text::wellFormed(verb.french) == verb.french &&
                      text::wellFormed(verb.english) == verb.english;
    for (const auto& form : verb.participe) {
        wellFormed = wellFormed && text::wellFormed(form->pronoun) == form->pronoun &&
                     text::wellFormed(form->verb) == form->verb;
    }

    const auto json = exporting::exportData(verb, world.bundle, world.settings, world.device);

    fuzz::require(json.has_value() == wellFormed, "refused exactly when it is no UTF-8");
    if (!json) {
        return 0;
    }
    for (const char* dangerous : {"</", "\u2028", "\u2029", "\n"}) {
        fuzz::require(json->find(dangerous) == std::string::npos,
                      "nothing ends a script's literal");
    }
    const auto read = nlohmann::json::parse(*json);
    fuzz::require(read["french"] == verb.french && read["english"] == verb.english,
                  "names arrive unchanged");
    for (std::size_t i = 0; i < verb.participe.size(); ++i) {
        fuzz::require(read["Participe"][i]["verb"] == verb.participe[i]->verb &&
                          read["Participe"][i]["pronoun"] == verb.participe[i]->pronoun,
                      "forms arrive unchanged");
    }
    return 0;
}
