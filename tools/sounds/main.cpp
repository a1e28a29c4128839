// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sound/grammar.h"
#include "sound/letters.h"
#include "sound/word.h"
#include "verbdb/content.h"

#include <algorithm>
#include <fstream>
#include <iostream>
#include <map>
#include <set>
#include <string>

using namespace lumora;

namespace {

using Spoken = std::map<std::string, std::map<std::string, std::set<std::string>>>;

std::vector<std::string> split(const std::string& text, const std::string& by)
{
    std::vector<std::string> parts;
    std::size_t from = 0;
    for (auto to = text.find(by); to != std::string::npos; to = text.find(by, from)) {
        parts.push_back(text.substr(from, to - from));
        from = to + by.size();
    }
    parts.push_back(text.substr(from));
    return parts;
}

std::string loose(std::string ipa)
{
    for (const auto& [from, to] : std::vector<std::pair<std::string, std::string>>{
             {"ɛ̃", "1"}, {"ɑ̃", "2"}, {"ɔ̃", "3"}, {"œ̃", "4"}, {"ɛ", "e"}, {"ɔ", "o"},
             {"ɑ", "a"}, {"œ", "ø"}, {"ɥ", "y"}, {"ə", ""}}) {
        for (auto at = ipa.find(from); at != std::string::npos; at = ipa.find(from)) {
            ipa.replace(at, from.size(), to);
        }
    }
    return ipa;
}

std::string plain(std::string ipa)
{
    for (const std::string mark : {"ː", "‿", ".", "ˈ", "ˌ", "͡", "̯", "ˑ", " ", "(", ")"}) {
        for (auto at = ipa.find(mark); at != std::string::npos; at = ipa.find(mark)) {
            ipa.erase(at, mark.size());
        }
    }
    return ipa;
}

} // namespace

int main(int argc, char** argv)
{
    const auto content = verbdb::readContent(argv[1]);
    Spoken spoken;
    for (const auto& verb : content.verbs) {
        auto& forms = spoken[verb.entry.infinitive];
        for (const auto& row : content.conjugator.rows(verb.entry)) {
            const auto tense = *sound::tenseNamed(conjugator::name(row.tense));
            const auto person = sound::personOf(row.pronoun);
            for (auto form : split(row.verb, ", ")) {
                if (form.starts_with("se ")) form = form.substr(3);
                if (form.starts_with("s'")) form = form.substr(2);
                for (const std::string end : {"-toi", "-nous", "-vous"})
                    if (form.ends_with(end)) form = form.substr(0, form.size() - end.size());
                if (form.find_first_of(" (") != std::string::npos) continue;
                forms[form].insert(sound::ipaOf(sound::wordSounds(sound::decoded(form), tense, person, sound::decoded(verb.entry.infinitive))));
            }
        }
    }
    if (argc > 2 && std::string(argv[2]) == "--all") {
        for (auto& [infinitive, forms] : spoken)
            for (auto& [form, sounds] : forms)
                for (auto& sound : sounds) std::cout << infinitive << "\t" << form << "\t" << sound << "\n";
        return 0;
    }
    std::ifstream file(argv[2]);
    int total = 0, strict = 0, near = 0, unknown = 0;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("#")) continue;
        auto fields = split(line, "\t");
        fields[0] = fields[0].substr(0, fields[0].find(" ("));
        ++total;
        const auto& ours = spoken[fields[0]][fields[1]];
        if (ours.empty()) { ++unknown; std::cout << "U\t" << line << "\n"; continue; }
        bool equal = false, looseEqual = false;
        std::string all;
        for (const auto& one : ours) {
            all += (all.empty() ? "" : "|") + one;
            for (const auto& theirs : split(fields[2], "|")) {
                equal |= plain(theirs) == one;
                looseEqual |= loose(plain(theirs)) == loose(one);
            }
        }
        strict += equal;
        near += looseEqual;
        if (!equal) std::cout << (looseEqual ? "S" : "L") << "\t" << fields[0] << "\t" << fields[1] << "\t" << all << "\t" << fields[2] << "\n";
    }
    std::cerr << total << " forms, unknown " << unknown << ", equal " << 100.0 * strict / total << " loose " << 100.0 * near / total << "\n";
}
