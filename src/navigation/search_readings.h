// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/tense_table.h"
#include "data/verb.h"
#include "lookup/lookup.h"

#include <optional>
#include <string>
#include <vector>

namespace lumora::platform {
class Bundle;
class CrashReporter;
class Database;
class DatabaseQueue;
class Device;
class SettingsStore;
} // namespace lumora::platform

namespace lumora::navigation {

/// A verb that the text of the search may mean, as a card shows it.
struct ReadingCard {
    std::string headword;
    /// "Present – je suis", or what the verb means.
    std::string detail;
    /// How a guess came about; empty where the card itself shows it.
    std::string kind;
    data::VerbPtr verb;
    /// The form at which the verb opens; none for the verb as a whole.
    std::optional<data::FormPlace> place;
};

/// What the text of the search may mean besides what it finds: a card or two where
/// the list does not begin with it, and guesses where the list is empty. GUI thread
/// only.
class SearchReadings {
public:
    /// What is passed must outlive the object.
    SearchReadings(const platform::Bundle& bundle, const platform::SettingsStore& settings,
                   const platform::Device& device, platform::CrashReporter& crashReporter)
        : bundle_{bundle}, settings_{settings}, device_{device}, crashReporter_{crashReporter}
    {}

    /// The shared queue. Not owned; null when there is no database.
    platform::DatabaseQueue* queue = nullptr;

    lookup::Lookup& lookup() { return lookup_; }
    /// Loads the index, so that the first text need not wait for it.
    void prepare();
    /// Reads the text, whose search has found `results`.
    void read(const std::string& text, const std::vector<data::VerbPtr>& results);
    void clear();

    const std::vector<ReadingCard>& cards() const { return cards_; }
    /// The search has found nothing: the cards stand in place of the list.
    bool replaceResults() const { return replaceResults_; }
    /// Searching the conjugated forms as well, which is switched off, may find more.
    bool offersForms() const { return offersForms_; }

private:
    ReadingCard cardOf(const lookup::Reading& reading, data::VerbPtr verb) const;
    std::string placesOf(const lookup::Reading& reading) const;
    std::string kindOf(const lookup::Reading& reading) const;
    void log(const platform::Database& database);

    const platform::Bundle& bundle_;
    const platform::SettingsStore& settings_;
    const platform::Device& device_;
    platform::CrashReporter& crashReporter_;
    lookup::Lookup lookup_;
    std::vector<ReadingCard> cards_;
    bool replaceResults_ = false;
    bool offersForms_ = false;
};

} // namespace lumora::navigation
