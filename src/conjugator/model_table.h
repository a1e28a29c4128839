// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "conjugator/conjugation_model.h"
#include "conjugator/paradigm.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace lumora::conjugator {

class TextTable;

/// The conjugation models: how the principal parts of a verb are made from its
/// infinitive, and all its simple forms from the principal parts.
///
/// The head of content/models.tsv describes the notation. A table that was
/// built is sound: parents exist, every model is complete.
class ModelTable {
public:
    static const std::vector<std::string>& header();

    /// Throws TableError.
    explicit ModelTable(const TextTable& table);

    bool contains(std::string_view model) const { return models_.contains(model); }
    std::vector<std::string> names() const;

    /// Why the infinitive cannot follow the model; empty when it can.
    std::string misfit(std::string_view model, std::string_view infinitive) const;

    /// The verb must fit the model.
    Paradigm conjugate(std::string_view model, std::string_view infinitive) const;

private:
    void inherit(const std::string& name, const TextTable& table,
                 std::vector<std::string>& descent);

    std::map<std::string, ConjugationModel, std::less<>> models_;
};

} // namespace lumora::conjugator
