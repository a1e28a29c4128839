// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/verb.h"
#include "platform/screens/index_path.h"
#include "platform/screens/swipe_action.h"

#include <iosfwd>

namespace lumora::platform {
class Bundle;
class DatabaseQueue;
class NotificationCenter;
class TableViewController;
} // namespace lumora::platform

namespace lumora::lists {

/// The swipe action that makes the verb of a row a favourite, or no longer one.
///
/// The list redraws its row; all other screens hear of it through
/// "VerbFavouriteToggled" with the list as sender. All that is handed in must
/// outlive the action. To trigger it without a queue stops the program.
platform::SwipeAction favouriteAction(platform::TableViewController& list,
                                      platform::DatabaseQueue* queue, const data::VerbPtr& verb,
                                      platform::IndexPath path, const platform::Bundle& bundle,
                                      platform::NotificationCenter& notifications,
                                      std::ostream& console);

} // namespace lumora::lists
