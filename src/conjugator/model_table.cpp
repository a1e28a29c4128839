// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "conjugator/model_table.h"

#include "conjugator/inflection.h"
#include "conjugator/text_table.h"

#include <algorithm>

namespace lumora::conjugator {

namespace {

/// How many cells a line may have: all of them, or one stem where the endings
/// are the same for every verb.
struct PartShape {
    std::string_view key;
    std::size_t cells;
    bool stem;
};
constexpr std::array<PartShape, 13> kParts{{
    {"infinitive", 1, false},
    {"present", kPersons, false},
    {"imperfect", kPersons, true},
    {"past", kPersons, true},
    {"future", kPersons, true},
    {"conditional", kPersons, true},
    {"subjunctive", kPersons, false},
    {"pastSubjunctive", kPersons, true},
    {"imperative", 3, false},
    {"gerund", 1, false},
    {"participle", 4, true},
    {"adjective", 4, false},
    {"persons", kPersons, false},
}};

std::string joined(const std::vector<std::string>& names, const std::string& between)
{
    std::string text;
    for (const auto& name : names) {
        text += (text.empty() ? "" : between) + name;
    }
    return text;
}

/// Stands in a cell before the ending of a form.
constexpr char kEndingMark = '|';

/// Every infinitive ends in one of these unless its model says otherwise.
std::string_view infinitiveEnding(std::string_view infinitive)
{
    for (const std::string_view ending : {"er", "eoir", "oir", "ir", "ïr", "re"}) {
        if (infinitive.ends_with(ending)) {
            return ending;
        }
    }
    return {};
}

bool isConsonant(char c)
{
    return c >= 'a' && c <= 'z' && std::string_view("aeiouy").find(c) == std::string_view::npos;
}

/// Where the infinitive is cut, and the consonants for which * stands.
struct Cut {
    std::string radical;
    std::string consonants;
};

std::optional<Cut> cut(std::string_view infinitive, std::string_view ends)
{
    const auto star = ends.find('*');
    const auto tail = star == std::string_view::npos ? ends : ends.substr(star + 1);
    if (!infinitive.ends_with(tail)) {
        return std::nullopt;
    }
    infinitive.remove_suffix(tail.size());
    if (star == std::string_view::npos) {
        return Cut{std::string(infinitive), {}};
    }

    auto begin = infinitive.size();
    // The u of gu and qu is no vowel.
    if (infinitive.ends_with("gu") || infinitive.ends_with("qu")) {
        begin -= 1;
    }
    while (begin > 0 && isConsonant(infinitive[begin - 1])) {
        --begin;
    }
    const auto consonants = infinitive.substr(begin);
    const auto head = ends.substr(0, star);
    if (consonants.empty() || !infinitive.substr(0, begin).ends_with(head)) {
        return std::nullopt;
    }
    return Cut{std::string(infinitive.substr(0, begin - head.size())), std::string(consonants)};
}

std::string twice(std::string_view part, std::string_view model)
{
    std::string text{"\""};
    text.append(part).append("\" of model \"").append(model).append("\" stands twice");
    return text;
}

} // namespace

const std::vector<std::string>& ModelTable::header()
{
    static const std::vector<std::string> names{"model", "part", "forms"};
    return names;
}

ModelTable::ModelTable(const TextTable& table)
{
    for (const auto& record : table.records()) {
        const auto& name = record.fields[0];
        const auto& key = record.fields[1];
        const auto& value = record.fields[2];
        if (name.empty()) {
            table.refuse(record, "a model needs a name");
        }
        auto& model = models_[name];
        if (model.line == 0) {
            model.line = record.line;
        }
        if (key == "like" || key == "ends") {
            auto& field = key == "like" ? model.parent : model.ends;
            if (!field.empty()) {
                table.refuse(record, twice(key, name));
            }
            if (value.empty()) {
                table.refuse(record, "empty form");
            }
            field = value;
            continue;
        }

        const auto shape = std::find_if(kParts.begin(), kParts.end(),
                                        [&](const PartShape& part) { return part.key == key; });
        if (shape == kParts.end()) {
            table.refuse(record, "unknown part \"" + key + "\"");
        }
        Part part;
        part.missing = value == "-";
        if (!part.missing) {
            for (const auto& cell : split(value, " ")) {
                std::vector<std::string> forms;
                if (cell != "-") {
                    forms = split(cell, "/");
                }
                for (const auto& form : forms) {
                    if (form.empty()) {
                        table.refuse(record, "empty form");
                    }
                    if (std::count(form.begin(), form.end(), kEndingMark) > 1) {
                        table.refuse(record, "\"" + form + "\" has two endings");
                    }
                }
                part.cells.push_back(std::move(forms));
            }
            const auto count = part.cells.size();
            if (count != shape->cells && (!shape->stem || count != 1)) {
                table.refuse(record, "expected " + std::to_string(shape->cells) + " forms, found " +
                                         std::to_string(count));
            }
        }
        // A stem of the past names its endings by its last vowel.
        if (!part.missing && (key == "past" || key == "pastSubjunctive") &&
            part.cells.size() == 1 &&
            !std::all_of(part.cells[0].begin(), part.cells[0].end(), isPastStem)) {
            table.refuse(record, "\"" + value + "\" does not end in a, i, in, u, ï or û");
        }
        if (!model.parts.emplace(key, std::move(part)).second) {
            table.refuse(record, twice(key, name));
        }
    }

    for (const auto& [name, model] : models_) {
        std::vector<std::string> descent;
        inherit(name, table, descent);
    }
}

/// Copies to the model what its ancestors say and it does not; each part keeps
/// the ending that it was written for.
void ModelTable::inherit(const std::string& name, const TextTable& table,
                         std::vector<std::string>& descent)
{
    auto& model = models_.at(name);
    const auto refuse = [&](const std::string& reason) {
        throw TableError(table.file(), model.line, "model \"" + name + "\" " + reason);
    };
    if (std::find(descent.begin(), descent.end(), name) != descent.end()) {
        descent.push_back(name);
        refuse("descends from itself: " + joined(descent, ", "));
    }
    descent.push_back(name);

    if (!model.parent.empty()) {
        const auto parent = models_.find(model.parent);
        if (parent == models_.end()) {
            refuse("is like the unknown model \"" + model.parent + "\"");
        }
        inherit(model.parent, table, descent);
        if (model.ends.empty()) {
            model.ends = parent->second.ends;
        }
        model.parts.insert(parent->second.parts.begin(), parent->second.parts.end());
        model.parent.clear();
    }
    if (model.ends.empty()) {
        refuse("lacks \"ends\"");
    }
    for (auto& [key, part] : model.parts) {
        if (part.ends.empty()) {
            part.ends = model.ends;
        }
    }
    for (const auto* key : {"present", "past", "participle"}) {
        if (!model.parts.contains(key)) {
            refuse(std::string("lacks \"") + key + "\"");
        }
    }

    // What is not written is derived from these forms, by their endings.
    const auto& present = model.parts.find("present")->second;
    const auto mustEnd = [&](std::size_t person, std::string_view ending, const char* derived) {
        if (present.missing || model.parts.contains(derived)) {
            return;
        }
        for (const auto& form : present.cells[person]) {
            if (!form.ends_with(ending)) {
                refuse(std::string("lacks \"") + derived + "\", which cannot be made from \"" +
                       form + "\"");
            }
        }
    };
    mustEnd(3, "ons", "imperfect");
    mustEnd(3, "ons", "gerund");
    mustEnd(5, "ent", "subjunctive");
    descent.pop_back();
}

std::vector<std::string> ModelTable::names() const
{
    std::vector<std::string> names;
    names.reserve(models_.size());
    for (const auto& [name, model] : models_) {
        names.push_back(name);
    }
    return names;
}

std::string ModelTable::misfit(std::string_view model, std::string_view infinitive) const
{
    const auto& found = models_.find(model)->second;
    const auto reason = [&](const std::string& ends) {
        return "\"" + std::string(infinitive) + "\" does not end in \"" + ends + "\" as model \"" +
               std::string(model) + "\" asks";
    };
    if (!cut(infinitive, found.ends)) {
        return reason(found.ends);
    }
    for (const auto& [key, part] : found.parts) {
        if (!part.missing && !cut(infinitive, part.ends)) {
            return reason(part.ends);
        }
    }
    return {};
}

Paradigm ModelTable::conjugate(std::string_view model, std::string_view infinitive) const
{
    const auto& parts = models_.find(model)->second.parts;
    const auto find = [&](std::string_view key) {
        const auto found = parts.find(key);
        return found == parts.end() ? nullptr : &found->second;
    };
    const auto expanded = [&](const Part& part, std::size_t cell) {
        const auto where = cut(infinitive, part.ends).value();
        Forms forms;
        for (const auto& text : part.cells[cell]) {
            Form form{where.radical};
            for (const char c : text) {
                if (c == kEndingMark) {
                    form.ending = form.text.size();
                } else if (c == '*') {
                    form.text += where.consonants;
                } else if (c != '.') {
                    form.text += c;
                }
            }
            add(forms, std::move(form));
        }
        return forms;
    };
    // A part written out, else made by "derive".
    const auto fill = [&](auto& target, std::string_view key, const auto& fromStem,
                          const auto& derive) {
        const auto* part = find(key);
        if (part == nullptr) {
            derive();
        } else if (!part->missing && part->cells.size() == target.size()) {
            for (std::size_t cell = 0; cell < target.size(); ++cell) {
                target[cell] = expanded(*part, cell);
            }
        } else if (!part->missing) {
            fromStem(expanded(*part, 0));
        }
    };
    const auto noStem = [](const Forms&) {};
    const auto nothing = [] {};

    Paradigm verb;
    std::array<Forms, 1> single;
    fill(single, "infinitive", noStem, [&] { single[0] = {{std::string(infinitive)}}; });
    for (auto& form : single[0]) {
        if (form.ending == Form::kNoEnding) {
            form.ending = form.text.size() - infinitiveEnding(form.text).size();
        }
    }
    verb.infinitive = single[0];

    fill(verb.present, "present", noStem, nothing);
    fill(
        verb.imperfect, "imperfect",
        [&](const Forms& stems) { verb.imperfect = imperfectOf(stems); },
        [&] { verb.imperfect = imperfectFromPresent(verb.present); });
    fill(verb.subjunctive, "subjunctive", noStem,
         [&] { verb.subjunctive = subjunctiveFromPresent(verb.present); });
    fill(verb.imperative, "imperative", noStem,
         [&] { verb.imperative = imperativeFromPresent(verb.present); });
    single[0].clear();
    fill(single, "gerund", noStem, [&] { single[0] = gerundFromPresent(verb.present); });
    verb.gerund = single[0];

    Forms pastStems;
    fill(
        verb.past, "past",
        [&](const Forms& stems) {
            pastStems = stems;
            verb.past = pastOf(stems);
        },
        nothing);
    fill(
        verb.pastSubjunctive, "pastSubjunctive",
        [&](const Forms& stems) { verb.pastSubjunctive = pastSubjunctiveOf(stems); },
        [&] { verb.pastSubjunctive = pastSubjunctiveOf(pastStems); });

    Forms futureStems;
    fill(
        verb.future, "future",
        [&](const Forms& stems) {
            futureStems = stems;
            verb.future = futureOf(stems);
        },
        [&] {
            futureStems = {{std::string(withoutMuteE(infinitive))}};
            verb.future = futureOf(futureStems);
        });
    fill(
        verb.conditional, "conditional",
        [&](const Forms& stems) { verb.conditional = conditionalOf(stems); },
        [&] { verb.conditional = conditionalOf(futureStems); });

    fill(
        verb.participle, "participle",
        [&](const Forms& masculine) { verb.participle = participlesOf(masculine); }, nothing);
    fill(verb.adjective, "adjective", noStem, nothing);

    if (const auto* persons = find("persons"); persons != nullptr && !persons->missing) {
        for (std::size_t person = 0; person < kPersons; ++person) {
            verb.persons[person] = !persons->cells[person].empty();
            if (verb.persons[person]) {
                continue;
            }
            for (auto* tense : {&verb.present, &verb.imperfect, &verb.past, &verb.future,
                                &verb.conditional, &verb.subjunctive, &verb.pastSubjunctive}) {
                (*tense)[person].clear();
            }
        }
        const std::array<std::size_t, 3> commanded{1, 3, 4};
        for (std::size_t form = 0; form < commanded.size(); ++form) {
            if (!verb.persons[commanded[form]]) {
                verb.imperative[form].clear();
            }
        }
    }
    return verb;
}

} // namespace lumora::conjugator
