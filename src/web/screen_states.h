// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/view_controller.h"
#include "web/outbox.h"

#include <map>
#include <memory>

namespace lumora::detail {
class VerbDetailTableViewController;
}

namespace lumora::navigation {
class HomeViewController;
class OptionsTableViewController;
} // namespace lumora::navigation

namespace lumora::web {

/// What the screens show, as the page draws it, and the numbers it calls them by.
class ScreenStates {
public:
    /// `openVerb`: the id of the verb that stands beside the lists; 0 for none.
    /// `beside`: whether the screen stands there.
    Json describe(const std::shared_ptr<platform::ViewController>& screen, std::int64_t openVerb,
                  bool beside);
    /// Null where there is none of that number any more.
    std::shared_ptr<platform::ViewController> screen(int number) const;

private:
    struct Entry {
        int number = 0;
        std::weak_ptr<platform::ViewController> screen;
        /// The texts around a verb's tables; kept, since the database is asked for them.
        std::shared_ptr<Json> words;
    };

    Entry& entryOf(const std::shared_ptr<platform::ViewController>& screen);
    Json verb(detail::VerbDetailTableViewController& screen, Entry& entry, bool beside);

    int last_ = 0;
    std::map<const platform::ViewController*, Entry> entries_;
};

/// The form sheet and the note of a tense; null where there is nothing to tell.
Json formSheetOf(detail::VerbDetailTableViewController& screen, int tense, int line);
Json tenseNoteOf(detail::VerbDetailTableViewController& screen, int tense);

} // namespace lumora::web
