// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/translation_table.h"

#include "settings/translation_language.h"

namespace lumora::data {

// Portuguese is ordered by its plain column and English has no simplified one,
// so their accented capitals come after Z.
constexpr std::array<TranslationLanguage, 8> kTranslationLanguages{{
    {"en", "settings.translations.english", &Verb::english, nullptr, "english", "english",
     "english"},
    {"nl", "settings.translations.dutch", &Verb::dutch, &Verb::simplified_dutch, "dutch",
     "simplified_dutch", "simplified_dutch"},
    {"fr", "settings.translations.french", &Verb::french, &Verb::simplified_french, "french",
     "simplified_french", "simplified_french"},
    {"de", "settings.translations.german", &Verb::german, &Verb::simplified_german, "german",
     "simplified_german", "simplified_german"},
    {"it", "settings.translations.italian", &Verb::italian, &Verb::simplified_italian, "italian",
     "simplified_italian", "simplified_italian"},
    {"pt", "settings.translations.portuguese", &Verb::portuguese, &Verb::simplified_portuguese,
     "portuguese", "simplified_portuguese", "portuguese"},
    {"es", "settings.translations.spanish", &Verb::spanish, &Verb::simplified_spanish, "spanish",
     "simplified_spanish", "simplified_spanish"},
    {"tr", "settings.translations.turkish", &Verb::turkish, &Verb::simplified_turkish, "", "", ""},
}};

const TranslationLanguage* languageWithCode(std::string_view code)
{
    for (const auto& language : kTranslationLanguages) {
        if (language.code == code) {
            return &language;
        }
    }
    return nullptr;
}

const TranslationLanguage& languageWithColumn(std::string_view language)
{
    const auto* const found = languageWithCode(language.substr(0, 2));
    return found != nullptr && found->hasColumn() ? *found : kTranslationLanguages.front();
}

const TranslationLanguage& listLanguage(const platform::SettingsStore& settings,
                                        const platform::Device& device)
{
    return languageWithColumn(settings::effectiveTranslationLanguage(settings, device));
}

} // namespace lumora::data
