// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "conjugator/agreement.h"
#include "conjugator/grammar.h"
#include "conjugator/paradigm.h"
#include "conjugator/row.h"
#include "conjugator/verb_entry.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lumora::conjugator {

/// How an auxiliary makes compound forms.
struct AuxiliaryUse {
    const Paradigm& verb;
    /// The participle agrees with the subject.
    bool agrees;
    /// The rows of a second auxiliary serve the search alone.
    bool shown;
};

/// Collects the rows of one verb, block by block; entry and verb must outlive it.
class RowBuilder {
public:
    RowBuilder(const VerbEntry& entry, const Paradigm& verb) : entry_(entry), verb_(verb) {}

    void simpleTense(Tense tense, const PersonForms& forms);

    void imperative();

    void infinitive();

    void participles();

    /// The forms are those of the auxiliary in the tense that helps to make this one.
    void compoundTense(Tense tense, const PersonForms& auxiliary, const AuxiliaryUse& use);

    void pastImperative(const AuxiliaryUse& use);

    void pastOf(Tense tense, const Forms& auxiliary, const AuxiliaryUse& use);

    void searchRow(Tense tense, std::string pronoun, std::string verb);

    std::string reflexive(std::string_view word) const;

    std::vector<Row> take();

private:
    /// An infinitive, a participle or an imperative has no pronoun.
    static constexpr std::size_t kNoPerson = kPersons;

    bool isUsed(std::size_t person) const;

    bool hasImperative() const;

    std::string pronoun(Tense tense, std::size_t person, std::string_view word,
                        bool aspirated) const;

    void addForms(Tense tense, std::size_t person, const Forms& forms);

    /// Double forms share a row; each of them alone is there for the search.
    void add(Tense tense, const std::string& pronoun, const Forms& forms);

    void addCompound(Tense tense, std::size_t person, const Forms& auxiliary, Number number,
                     const AuxiliaryUse& use);

    const VerbEntry& entry_;
    const Paradigm& verb_;
    std::vector<Row> shown_;
    std::vector<Row> variants_;
    std::vector<Row> hidden_;
};

} // namespace lumora::conjugator
