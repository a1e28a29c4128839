// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "conjugator/model_table.h"

#include "conjugator/text_table.h"

#include <algorithm>

namespace lumora::conjugator {

namespace {

using Endings = std::array<std::string_view, kPersons>;

struct PastEndings {
    std::string_view theme;
    Endings past;
    Endings subjunctive;
};

/// By the theme in which a stem ends, longer themes before the vowels in them.
constexpr std::array<PastEndings, 6> kPastEndings{{
    {"in",
     {"ins", "ins", "int", "înmes", "întes", "inrent"},
     {"insse", "insses", "înt", "inssions", "inssiez", "inssent"}},
    {"a",
     {"ai", "as", "a", "âmes", "âtes", "èrent"},
     {"asse", "asses", "ât", "assions", "assiez", "assent"}},
    {"i",
     {"is", "is", "it", "îmes", "îtes", "irent"},
     {"isse", "isses", "ît", "issions", "issiez", "issent"}},
    {"u",
     {"us", "us", "ut", "ûmes", "ûtes", "urent"},
     {"usse", "usses", "ût", "ussions", "ussiez", "ussent"}},
    {"ï",
     {"ïs", "ïs", "ït", "ïmes", "ïtes", "ïrent"},
     {"ïsse", "ïsses", "ït", "ïssions", "ïssiez", "ïssent"}},
    {"û",
     {"ûs", "ûs", "ût", "ûmes", "ûtes", "ûrent"},
     {"ûsse", "ûsses", "ût", "ûssions", "ûssiez", "ûssent"}},
}};

constexpr Endings kImperfectEndings{"ais", "ais", "ait", "ions", "iez", "aient"};
constexpr Endings kFutureEndings{"ai", "as", "a", "ons", "ez", "ont"};
constexpr Endings kConditionalEndings{"ais", "ais", "ait", "ions", "iez", "aient"};
constexpr Endings kSubjunctiveEndings{"e", "es", "e", "ions", "iez", "ent"};
constexpr std::array<std::string_view, 4> kAgreement{"", "e", "s", "es"};

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

void add(Forms& forms, std::string form)
{
    if (std::find(forms.begin(), forms.end(), form) == forms.end()) {
        forms.push_back(std::move(form));
    }
}

/// The forms without a last ending, for another one to be put on.
Forms without(const Forms& forms, std::string_view ending)
{
    Forms stems;
    for (const auto& form : forms) {
        if (form.ends_with(ending)) {
            add(stems, form.substr(0, form.size() - ending.size()));
        }
    }
    return stems;
}

/// Before e and i the signs that keep c and g soft fall away (plaça, placèrent;
/// mangea, mangèrent).
std::string joinedTo(std::string stem, std::string_view ending)
{
    const bool front = ending.starts_with('e') || ending.starts_with('i') ||
                       ending.starts_with("è") || ending.starts_with("é");
    if (front && stem.ends_with("ge")) {
        stem.pop_back();
    } else if (front && stem.ends_with("ç")) {
        stem.replace(stem.size() - std::string_view("ç").size(), std::string::npos, "c");
    }
    return stem.append(ending);
}

Forms joinedTo(const Forms& stems, std::string_view ending)
{
    Forms forms;
    for (const auto& stem : stems) {
        add(forms, joinedTo(stem, ending));
    }
    return forms;
}

PersonForms joinedTo(const Forms& stems, const Endings& endings)
{
    PersonForms forms;
    for (std::size_t person = 0; person < kPersons; ++person) {
        forms[person] = joinedTo(stems, endings[person]);
    }
    return forms;
}

const PastEndings* pastEndingsOf(std::string_view stem)
{
    const auto found =
        std::find_if(kPastEndings.begin(), kPastEndings.end(),
                     [&](const PastEndings& endings) { return stem.ends_with(endings.theme); });
    return found == kPastEndings.end() ? nullptr : &*found;
}

PersonForms pastForms(const Forms& stems, Endings PastEndings::*tense)
{
    PersonForms forms;
    for (const auto& stem : stems) {
        const auto* endings = pastEndingsOf(stem);
        const auto bare = stem.substr(0, stem.size() - endings->theme.size());
        for (std::size_t person = 0; person < kPersons; ++person) {
            add(forms[person], joinedTo(bare, (endings->*tense)[person]));
        }
    }
    return forms;
}

/// Imperfect and present subjunctive of nous and vous: stem of the present.
PersonForms fromPresent(const PersonForms& present, const Endings& endings)
{
    const auto nous = without(present[3], "ons");
    auto vous = without(present[4], "ez");
    if (vous.empty()) {
        vous = nous; // vous faites, vous dites
    }
    auto forms = joinedTo(nous, endings);
    forms[3] = joinedTo(vous, endings[3]);
    forms[4] = joinedTo(vous, endings[4]);
    return forms;
}

Forms imperativeOfTu(const Forms& present)
{
    Forms forms;
    for (const auto& form : present) {
        add(forms, form.ends_with("es") ? form.substr(0, form.size() - 1) : form);
    }
    return forms;
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
                Forms forms;
                if (cell != "-") {
                    forms = split(cell, "/");
                }
                if (std::find(forms.begin(), forms.end(), "") != forms.end()) {
                    table.refuse(record, "empty form");
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
            !std::all_of(part.cells[0].begin(), part.cells[0].end(), pastEndingsOf)) {
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
            auto form = where.radical;
            for (const char c : text) {
                if (c == '*') {
                    form += where.consonants;
                } else if (c != '.') {
                    form += c;
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
    fill(single, "infinitive", noStem, [&] { single[0] = {std::string(infinitive)}; });
    verb.infinitive = single[0];

    fill(verb.present, "present", noStem, nothing);
    fill(
        verb.imperfect, "imperfect",
        [&](const Forms& stems) { verb.imperfect = joinedTo(stems, kImperfectEndings); },
        [&] { verb.imperfect = fromPresent(verb.present, kImperfectEndings); });
    fill(verb.subjunctive, "subjunctive", noStem, [&] {
        verb.subjunctive = fromPresent(verb.present, kSubjunctiveEndings);
        for (const std::size_t person : {0U, 1U, 2U, 5U}) {
            verb.subjunctive[person] =
                joinedTo(without(verb.present[5], "ent"), kSubjunctiveEndings[person]);
        }
    });
    fill(verb.imperative, "imperative", noStem, [&] {
        verb.imperative = {imperativeOfTu(verb.present[1]), verb.present[3], verb.present[4]};
    });
    single[0].clear();
    fill(single, "gerund", noStem,
         [&] { single[0] = joinedTo(without(verb.present[3], "ons"), "ant"); });
    verb.gerund = single[0];

    Forms pastStems;
    fill(
        verb.past, "past",
        [&](const Forms& stems) {
            pastStems = stems;
            verb.past = pastForms(stems, &PastEndings::past);
        },
        nothing);
    fill(
        verb.pastSubjunctive, "pastSubjunctive",
        [&](const Forms& stems) {
            verb.pastSubjunctive = pastForms(stems, &PastEndings::subjunctive);
        },
        [&] { verb.pastSubjunctive = pastForms(pastStems, &PastEndings::subjunctive); });

    Forms futureStems;
    fill(
        verb.future, "future",
        [&](const Forms& stems) {
            futureStems = stems;
            verb.future = joinedTo(stems, kFutureEndings);
        },
        [&] {
            const std::string whole(infinitive);
            futureStems = {whole.ends_with('e') ? whole.substr(0, whole.size() - 1) : whole};
            verb.future = joinedTo(futureStems, kFutureEndings);
        });
    fill(
        verb.conditional, "conditional",
        [&](const Forms& stems) { verb.conditional = joinedTo(stems, kConditionalEndings); },
        [&] { verb.conditional = joinedTo(futureStems, kConditionalEndings); });

    fill(
        verb.participle, "participle",
        [&](const Forms& masculine) {
            for (std::size_t form = 0; form < kAgreement.size(); ++form) {
                for (const auto& text : masculine) {
                    // A participle in -s keeps it in the plural: pris, prises.
                    const bool keeps = text.ends_with('s') && form == 2;
                    add(verb.participle[form], text + std::string(keeps ? "" : kAgreement[form]));
                }
            }
        },
        nothing);
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
