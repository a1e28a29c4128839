// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/favourite_statements.h"

#include "data/verb.h"
#include "platform/storage/database.h"

#include <ostream>

namespace lumora::data {

void updateFavourite(platform::Database& database, const Verb& verb, std::ostream& console)
{
    const auto* statement = verb.isFavourite ? "INSERT INTO favourite(verbid) VALUES(?)"
                                             : "DELETE FROM favourite WHERE verbid=?";
    const auto done = database.executeUpdate(statement, {verb.id});
    if (!done) {
        console << "Unable to update favourite " << done.error().message << std::endl;
    }
}

} // namespace lumora::data
