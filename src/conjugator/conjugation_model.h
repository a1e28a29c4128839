// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "conjugator/paradigm.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lumora::conjugator {

/// The cells of one line of a model, and the end of the infinitive which they
/// replace.
struct ModelPart {
    std::string ends;
    std::vector<std::vector<std::string>> cells;
    bool missing = false;
};

/// One model as its lines tell it: the parts that are written out. The others
/// are derived from these. The head of content/models.tsv has the notation.
struct ConjugationModel {
    /// Stands in a cell before the ending of a form.
    static constexpr char kEndingMark = '|';

    std::size_t line = 0;
    std::string parent;
    std::string ends;
    std::map<std::string, ModelPart, std::less<>> parts;

    /// Null for a part that is not written out.
    const ModelPart* part(std::string_view key) const;

    /// The end that the model replaces and the infinitive does not have; none
    /// when the infinitive can follow the model.
    std::optional<std::string> endNotFound(std::string_view infinitive) const;

    /// The infinitive must fit and the model must be complete.
    Paradigm conjugate(std::string_view infinitive) const;
};

} // namespace lumora::conjugator
