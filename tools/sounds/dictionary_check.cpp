// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sounds/dictionary_check.h"

#include "conjugator/text_table.h"

#include <algorithm>
#include <fnmatch.h>
#include <fstream>
#include <iomanip>
#include <map>
#include <optional>
#include <ostream>
#include <set>
#include <string>
#include <utility>

namespace lumora::sounds {

namespace {

using conjugator::split;
using conjugator::TextTable;

constexpr double kStrictShare = 97.0;
constexpr double kLooseShare = 99.5;

/// The pronunciations of each form of an infinitive.
using Forms = std::map<std::pair<std::string, std::string>, std::set<std::string>>;
using Replacements = std::vector<std::pair<std::string_view, std::string_view>>;

std::string replaced(std::string text, const Replacements& replacements)
{
    for (const auto& [what, by] : replacements) {
        for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at)) {
            text.replace(at, what.size(), by);
            at += by.size();
        }
    }
    return text;
}

/// Without stress, length, syllables and ties.
std::string plain(const std::string& ipa)
{
    return replaced(ipa, {{"ˈ", ""}, {"ˌ", ""}, {"ː", ""}, {".", ""}, {"‿", ""}, {"͡", ""}});
}

/// What dictionaries are not of one mind about is made the same.
std::string loose(const std::string& ipa)
{
    return replaced(ipa, {{"ɛ̃", "1"},
                          {"ɑ̃", "2"},
                          {"ɔ̃", "3"},
                          {"œ̃", "4"},
                          {"ɛ", "e"},
                          {"ɔ", "o"},
                          {"ɑ", "a"},
                          {"œ", "ø"},
                          {"ɥ", "y"},
                          {"ə", ""}});
}

struct Entry {
    std::string headword;
    std::string form;
    std::string ipa;
};

std::vector<Entry> dictionaryEntries(const std::filesystem::path& path)
{
    std::ifstream stream(path);
    if (!stream) {
        throw conjugator::TableError(path.string(), 1, "the file cannot be read");
    }
    std::vector<Entry> entries;
    std::size_t number = 0;
    for (std::string line; std::getline(stream, line);) {
        ++number;
        if (line.starts_with('#')) {
            continue;
        }
        auto fields = split(line, "\t");
        if (fields.size() != 3) {
            throw conjugator::TableError(path.string(), number, "expected 3 columns");
        }
        entries.push_back({fields[0], fields[1], fields[2]});
    }
    return entries;
}

Forms formsOf(const std::vector<SpokenVerb>& verbs)
{
    Forms forms;
    for (const auto& verb : verbs) {
        for (const auto& form : verb.forms) {
            forms[{verb.verb->entry.infinitive, form.form}].insert(form.ipa);
        }
    }
    return forms;
}

std::string joined(const std::set<std::string>& texts)
{
    std::string all;
    for (const auto& text : texts) {
        all += (all.empty() ? "" : "|") + text;
    }
    return all;
}

bool matches(const std::string& pattern, const std::string& text)
{
    return fnmatch(pattern.c_str(), text.c_str(), 0) == 0;
}

using Heard = std::vector<std::string>;

/// Whether the test holds for one pronunciation of ours and one of theirs.
template <typename Test>
bool anyPair(const std::set<std::string>& ours, const Heard& theirs, Test test)
{
    return std::any_of(ours.begin(), ours.end(), [&](const std::string& our) {
        return std::any_of(theirs.begin(), theirs.end(), [&](const std::string& their) {
            return test(plain(our), plain(their));
        });
    });
}

template <typename Normal>
bool meet(const std::set<std::string>& ours, const Heard& theirs, Normal normal)
{
    return anyPair(ours, theirs, [&](const std::string& our, const std::string& their) {
        return normal(our) == normal(their);
    });
}

struct Difference {
    std::string infinitive;
    std::string form;
    std::set<std::string> ours;
    Heard theirs;
};

/// What is left of a text before the ending that "*ending" asks for.
std::optional<std::string> stemBefore(const std::string& ending, const std::string& text)
{
    const auto bare = ending.substr(1);
    return text.ends_with(bare) ? std::optional(text.substr(0, text.size() - bare.size()))
                                : std::nullopt;
}

/// Where theirs is given, only the two endings may differ: what stands before them
/// is the same, so that no stem hides behind an ending.
bool excuses(const std::vector<std::string>& record, const Difference& difference)
{
    const auto& [infinitive, form, heard, theirs] = difference;
    if (!matches(record[0], infinitive) || !matches(record[1], form)) {
        return false;
    }
    if (record[3] == "-") {
        return matches(record[2], joined(heard));
    }
    return anyPair(heard, theirs, [&](const std::string& our, const std::string& their) {
        const auto stem = stemBefore(record[2], our);
        return stem && stem == stemBefore(record[3], their);
    });
}

bool isListed(const TextTable& disagreements, const Difference& difference)
{
    const auto& records = disagreements.records();
    return std::any_of(records.begin(), records.end(), [&](const TextTable::Record& record) {
        return excuses(record.fields, difference);
    });
}

struct Count {
    int all = 0;
    int unknown = 0;
    int listed = 0;
    int strict = 0;
    int loose = 0;
};

double share(int part, const Count& count)
{
    return 100.0 * part / std::max(1, count.all - count.unknown);
}

} // namespace

bool agreesWithDictionary(const std::vector<SpokenVerb>& verbs,
                          const std::filesystem::path& dictionary,
                          const std::filesystem::path& disagreements, std::ostream& output)
{
    const auto forms = formsOf(verbs);
    const auto listed =
        TextTable::read(disagreements, {"infinitive", "form", "ours", "theirs", "reason"});
    const auto entries = dictionaryEntries(dictionary);
    Count count;
    Count listedCount;
    for (const auto& [headword, form, ipa] : entries) {
        ++count.all;
        const auto infinitive = headword.substr(0, headword.find(" ("));
        const auto found = forms.find({infinitive, form});
        if (found == forms.end()) {
            ++count.unknown;
            output << "unknown\t" << infinitive << "\t" << form << "\n";
            continue;
        }
        const auto theirs = split(ipa, "|");
        const bool same = meet(found->second, theirs, [](std::string text) { return text; });
        const bool close = same || meet(found->second, theirs, loose);
        count.strict += same;
        count.loose += close;
        if (same) {
            continue;
        }
        const auto ours = joined(found->second);
        if (isListed(listed, {infinitive, form, found->second, theirs})) {
            ++listedCount.strict;
            listedCount.loose += !close;
            continue;
        }
        output << (close ? "letter\t" : "sound\t") << infinitive << "\t" << form << "\t" << ours
               << "\t" << ipa << "\n";
    }
    const auto strict = share(count.strict + listedCount.strict, count);
    const auto near = share(count.loose + listedCount.loose, count);
    output << std::fixed << std::setprecision(2) << count.all << " forms, " << count.unknown
           << " not in the tables\n"
           << "letter for letter " << strict << " % (" << share(count.strict, count)
           << " % without the " << listedCount.strict << " listed)\n"
           << "by sound          " << near << " % (" << share(count.loose, count)
           << " % without the " << listedCount.loose << " listed)\n";
    return strict >= kStrictShare && near >= kLooseShare;
}

} // namespace lumora::sounds
