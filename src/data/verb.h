// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/conjugation.h"

#include <cstdint>
#include <memory>
#include <string>

namespace lumora::platform {
class Device;
class SettingsStore;
} // namespace lumora::platform

namespace lumora::data {

/// One verb. Shared by the list that read it, the detail screen and the
/// export: a favourite toggled in one shows in all.
struct Verb {
    std::int64_t id = -1;
    std::string english;
    std::string german;
    std::string simplified_german;
    std::string french;
    std::string simplified_french;
    std::string spanish;
    std::string simplified_spanish;
    std::string dutch;
    std::string simplified_dutch;
    std::string italian;
    std::string simplified_italian;
    std::string portuguese;
    std::string simplified_portuguese;
    /// No database column fills the Turkish fields yet.
    std::string turkish;
    std::string simplified_turkish;
    bool isFavourite = false;
    /// Never set: a verb's forms are read each time it is shown.
    bool loaded = false;

    /// What tells it from the verbs of its name where no translation does:
    /// "avoir". Empty for others, and unless distinguishHomographs() was asked.
    std::string distinction;

    ConjugationList conditionnelPasse1reForme;
    ConjugationList conditionnelPasse2eForme;
    ConjugationList conditionnelPresent;
    ConjugationList imperatif;
    ConjugationList indicatifFuturAnterieur;
    ConjugationList indicatifFuturSimple;
    ConjugationList indicatifImparfait;
    ConjugationList indicatifPasseAnterieur;
    ConjugationList indicatifPasseCompose;
    ConjugationList indicatifPasseSimple;
    ConjugationList indicatifPlusQueParfait;
    ConjugationList indicatifPresent;
    ConjugationList infinitif;
    ConjugationList participe;
    ConjugationList subjonctifImparfait;
    ConjugationList subjonctifPasse;
    ConjugationList subjonctifPlusqueParfait;
    ConjugationList subjonctifPresent;

    /// The text in the user's translation language: the stored code when it is
    /// one of ours ("tr" gives the empty text), else by the device's first
    /// preferred language, else English.
    const std::string& translation(const platform::SettingsStore& settings,
                                   const platform::Device& device) const;
};

using VerbPtr = std::shared_ptr<Verb>;

} // namespace lumora::data
