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

std::string twice(std::string_view part, std::string_view model)
{
    std::string text{"\""};
    text.append(part).append("\" of model \"").append(model).append("\" stands twice");
    return text;
}

/// "like" and "ends", which say one text.
void readText(std::string& field, const TextTable& table, const TextTable::Record& record)
{
    if (!field.empty()) {
        table.refuse(record, twice(record.fields[1], record.fields[0]));
    }
    if (record.fields[2].empty()) {
        table.refuse(record, "empty form");
    }
    field = record.fields[2];
}

std::vector<std::string> readCell(const std::string& cell, const TextTable& table,
                                  const TextTable::Record& record)
{
    if (cell == "-") {
        return {};
    }
    auto forms = split(cell, "/");
    for (const auto& form : forms) {
        if (form.empty()) {
            table.refuse(record, "empty form");
        }
        if (std::count(form.begin(), form.end(), ConjugationModel::kEndingMark) > 1) {
            table.refuse(record, "\"" + form + "\" has two endings");
        }
    }
    return forms;
}

ModelPart readPart(const TextTable& table, const TextTable::Record& record)
{
    const auto& key = record.fields[1];
    const auto& value = record.fields[2];
    const auto shape = std::find_if(kParts.begin(), kParts.end(),
                                    [&](const PartShape& part) { return part.key == key; });
    if (shape == kParts.end()) {
        table.refuse(record, "unknown part \"" + key + "\"");
    }
    ModelPart part;
    part.missing = value == "-";
    if (part.missing) {
        return part;
    }
    for (const auto& cell : split(value, " ")) {
        part.cells.push_back(readCell(cell, table, record));
    }
    const auto count = part.cells.size();
    if (count != shape->cells && (!shape->stem || count != 1)) {
        table.refuse(record, "expected " + std::to_string(shape->cells) + " forms, found " +
                                 std::to_string(count));
    }
    // A stem of the past names its endings by its last vowel.
    if ((key == "past" || key == "pastSubjunctive") && count == 1 &&
        !std::all_of(part.cells[0].begin(), part.cells[0].end(), isPastStem)) {
        table.refuse(record, "\"" + value + "\" does not end in a, i, in, u, ï or û");
    }
    return part;
}

[[noreturn]] void refuse(const TextTable& table, const std::string& name,
                         const ConjugationModel& model, const std::string& reason)
{
    throw TableError(table.file(), model.line, "model \"" + name + "\" " + reason);
}

void refuseIncomplete(const TextTable& table, const std::string& name,
                      const ConjugationModel& model)
{
    if (model.ends.empty()) {
        refuse(table, name, model, "lacks \"ends\"");
    }
    for (const auto* key : {"present", "past", "participle"}) {
        if (model.part(key) == nullptr) {
            refuse(table, name, model, std::string("lacks \"") + key + "\"");
        }
    }
    // What is not written is derived from these forms, by their endings.
    const auto& present = *model.part("present");
    const auto mustEnd = [&](std::size_t person, std::string_view ending, const char* derived) {
        if (present.missing || model.part(derived) != nullptr) {
            return;
        }
        for (const auto& form : present.cells[person]) {
            if (!form.ends_with(ending)) {
                refuse(table, name, model,
                       std::string("lacks \"") + derived + "\", which cannot be made from \"" +
                           form + "\"");
            }
        }
    };
    mustEnd(3, "ons", "imperfect");
    mustEnd(3, "ons", "gerund");
    mustEnd(5, "ent", "subjunctive");
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
        if (name.empty()) {
            table.refuse(record, "a model needs a name");
        }
        auto& model = models_[name];
        if (model.line == 0) {
            model.line = record.line;
        }
        if (key == "like" || key == "ends") {
            readText(key == "like" ? model.parent : model.ends, table, record);
        } else if (!model.parts.emplace(key, readPart(table, record)).second) {
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
    if (std::find(descent.begin(), descent.end(), name) != descent.end()) {
        descent.push_back(name);
        refuse(table, name, model, "descends from itself: " + joined(descent, ", "));
    }
    descent.push_back(name);

    if (!model.parent.empty()) {
        const auto parent = models_.find(model.parent);
        if (parent == models_.end()) {
            refuse(table, name, model, "is like the unknown model \"" + model.parent + "\"");
        }
        inherit(model.parent, table, descent);
        if (model.ends.empty()) {
            model.ends = parent->second.ends;
        }
        model.parts.insert(parent->second.parts.begin(), parent->second.parts.end());
        model.parent.clear();
    }
    for (auto& [key, part] : model.parts) {
        if (part.ends.empty()) {
            part.ends = model.ends;
        }
    }
    refuseIncomplete(table, name, model);
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
    const auto end = models_.find(model)->second.endNotFound(infinitive);
    return end ? "\"" + std::string(infinitive) + "\" does not end in \"" + *end +
                     "\" as model \"" + std::string(model) + "\" asks"
               : std::string{};
}

Paradigm ModelTable::conjugate(std::string_view model, std::string_view infinitive) const
{
    return models_.find(model)->second.conjugate(infinitive);
}

} // namespace lumora::conjugator
