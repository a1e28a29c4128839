// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "conjugator/agreement.h"
#include "conjugator/grammar.h"
#include "conjugator/paradigm.h"
#include "conjugator/row.h"
#include "conjugator/verb_entry.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace lumora::conjugator {

/// How an auxiliary makes compound forms.
struct AuxiliaryUse {
    const Paradigm& verb;
    /// The participle agrees with the subject.
    bool agrees;
};

/// Collects the rows of one verb, block by block; entry and verb must outlive it.
///
/// The forms of two auxiliaries share a row: "suis apparu(e), j'ai apparu". The
/// second has its own pronoun where that is not the row's.
class RowBuilder {
public:
    RowBuilder(const VerbEntry& entry, const Paradigm& verb, std::vector<AuxiliaryUse> auxiliaries);

    void simpleTense(Tense tense, const PersonForms& forms);

    void imperative();

    void infinitive();

    void participles();

    /// The tense of the auxiliary that helps to make this one.
    void compoundTense(Tense tense, PersonForms Paradigm::*helping);

    void pastImperative();

    void pastOf(Tense tense, Forms Paradigm::*helping);

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

    /// "formsOf" tells the forms of an auxiliary.
    void addCompound(Tense tense, std::size_t person, Number number,
                     const std::function<Forms(const Paradigm&)>& formsOf);

    Division division(const Form& form) const;

    const VerbEntry& entry_;
    const Paradigm& verb_;
    std::vector<AuxiliaryUse> auxiliaries_;
    /// With and without the reflexive pronoun of infinitive and participle.
    std::vector<std::string> regularStems_;
    std::vector<Row> shown_;
    std::vector<Row> variants_;
    std::vector<Row> hidden_;
};

} // namespace lumora::conjugator
