// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace lumora::support {

/// What people type, key by key where that matters; each is searched from the
/// start and anywhere.
inline constexpr const char* kSearchTexts[] = {
    // Words on their way.
    "p", "pa", "par", "parl", "parle", "parlerions", "s", "se", "sera", "serait", "f", "fi", "fin",
    "finiss", "finissent", "v", "va", "vais", "vinrent", "eu",
    // Other languages, capitals, accents, the reflexive and apostrophes.
    "go", "geh", "love", "spre", "ALLER", "Étr", "êtr", "etre", "é", "ç", "œuvr", "haï", "(s'",
    "c'est", "c\u2019est", "s'é",
    // Compound forms and the endings that most verbs share.
    "aurais", "avons parl", "été", "issions", "eraient", "ez",
    // Nothing, everything, and wildcards inside.
    "zzz", "anticonstitutionnellement", "parler et chanter ensemble", "", "%", "_e_z_z", "a_m%ns",
    "m%g%r"};

} // namespace lumora::support
