// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sounds/dictionary_check.h"
#include "sounds/rule_check.h"
#include "sounds/spoken_content.h"

#include <exception>
#include <filesystem>
#include <iostream>
#include <string_view>
#include <vector>

namespace {

constexpr auto kUsage =
    "usage: check-sounds CONTENT_DIR [DICTIONARY]\n"
    "       check-sounds --list CONTENT_DIR\n"
    "\n"
    "Says every row of the verbs in CONTENT_DIR and holds it against the rules of\n"
    "grammar and, form by form, against DICTIONARY, a text table of infinitive, form\n"
    "and IPA. With --list the forms are printed in such columns.\n";

using lumora::sounds::SpokenVerb;

void list(const std::vector<SpokenVerb>& verbs)
{
    for (const auto& verb : verbs) {
        for (const auto& form : verb.forms) {
            std::cout << verb.verb->entry.infinitive << "\t" << form.form << "\t" << form.ipa
                      << "\t" << form.rowIpa << "\n";
        }
    }
}

int run(const std::vector<std::string_view>& arguments)
{
    const bool listing = arguments.size() == 2 && arguments[0] == "--list";
    if (arguments.empty() || arguments.size() > 2 ||
        (!listing && arguments[0].substr(0, 1) == "-")) {
        std::cerr << kUsage;
        return 2;
    }
    const std::filesystem::path folder(arguments[listing ? 1 : 0]);
    const auto content = lumora::verbdb::readContent(folder);
    std::vector<SpokenVerb> verbs;
    verbs.reserve(content.verbs.size());
    for (const auto& verb : content.verbs) {
        verbs.push_back(lumora::sounds::spoken(verb, content.conjugator));
    }
    if (listing) {
        list(verbs);
        return 0;
    }
    bool good = lumora::sounds::followsRules(verbs, std::cout);
    if (arguments.size() == 2) {
        good &= lumora::sounds::agreesWithDictionary(verbs, arguments[1],
                                                     folder / "sound_disagreements.tsv", std::cout);
    }
    return good ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    try {
        return run({argv + 1, argv + argc});
    } catch (const std::exception& error) {
        std::cerr << error.what() << "\n";
        return 1;
    }
}
