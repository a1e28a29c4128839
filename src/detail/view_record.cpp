// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "detail/view_record.h"

#include "data/history_record.h"
#include "platform/machine/clock.h"
#include "platform/machine/device.h"
#include "platform/machine/review_prompter.h"
#include "platform/storage/settings_store.h"
#include "settings/setting_keys.h"

#include <algorithm>
#include <limits>

namespace lumora::detail {

namespace {

/// The view from which on a review may be asked for.
constexpr std::int64_t kViewsBeforeReview = 21;

} // namespace

ViewRecord::ViewRecord(platform::SettingsStore& settings, const platform::Device& device,
                       const platform::Clock& clock, platform::ReviewPrompter& reviewPrompter)
    : settings_{settings}, device_{device}, clock_{clock}, reviewPrompter_{reviewPrompter}
{}

void ViewRecord::countView() const
{
    const auto arguments = device_.launchArguments();
    if (std::find(arguments.begin(), arguments.end(), "ui_test") != arguments.end()) {
        return;
    }
    // A damaged count must not overflow.
    const auto before = settings_.integerForKey(settings::kNumberOfVerbsViewed);
    const auto count = before < std::numeric_limits<std::int64_t>::max() ? before + 1 : before;
    if (count >= kViewsBeforeReview && !settings_.boolForKey(settings::kAskedForReview)) {
        if (device_.hasActiveScene()) {
            reviewPrompter_.requestReview();
        }
        settings_.setValue(true, settings::kAskedForReview);
    }
    settings_.setValue(count, settings::kNumberOfVerbsViewed);
}

platform::Result<void> ViewRecord::recordHistory(platform::Database& database,
                                                 std::int64_t verbId) const
{
    if (!platform::boolObjectForKey(settings_, settings::kUseHistory).value_or(true)) {
        return {};
    }
    return data::recordInHistory(database, verbId,
                                 clock_.secondsSince1970() - platform::kReferenceDate);
}

} // namespace lumora::detail
