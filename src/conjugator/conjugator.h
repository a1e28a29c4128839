// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "conjugator/model_table.h"
#include "conjugator/paradigm.h"
#include "conjugator/row.h"
#include "conjugator/verb_entry.h"

#include <string>
#include <vector>

namespace lumora::conjugator {

struct AuxiliaryUse;

/// Turns a verb's entry into its rows: pronouns, elision, compound tenses,
/// agreement.
class Conjugator {
public:
    /// The table must have the models "avoir" and "être".
    explicit Conjugator(ModelTable models);

    const ModelTable& models() const { return models_; }

    /// As dictionaries file it: "aimer", "évanouir (s')", "méfier (se)", "aller (s'en)".
    std::string headword(const VerbEntry& entry) const;

    /// The group of the school grammars: 1 (parler), 2 (finir, finissant) or 3.
    int group(const VerbEntry& entry) const;

    /// The shown rows in the order of the blocks and persons, then the others.
    std::vector<Row> rows(const VerbEntry& entry) const;

private:
    std::vector<AuxiliaryUse> auxiliariesOf(Auxiliary auxiliary) const;
    /// Where the circumflex stands before the ending, the whole verb has a second
    /// spelling; it is found, but not shown beside every form. A verb in -aître is
    /// no longer of its model then: that one tells the spellings itself.
    void addRespelled(std::vector<Row>& rows, const VerbEntry& entry) const;

    ModelTable models_;
    Paradigm avoir_;
    Paradigm etre_;
};

} // namespace lumora::conjugator
