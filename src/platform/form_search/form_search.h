// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/storage/database.h"

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

namespace lumora::platform {

class ResidentTable;

/// The search of verbs through their conjugated forms, fast enough for each key press.
///
/// Keeps the verbs and forms of the file in memory from the first search on, as
/// they were then: one object for one database. For the thread inside a block of
/// the queue.
class FormSearch {
public:
    using Reader = std::function<void(Result<ResultSet>& rows)>;

    FormSearch();
    ~FormSearch();

    /// Reads what the first search would else read. False when there is no memory for
    /// it, or no packed forms are in the file.
    bool prepare(const Database& database);

    /// Hands the rows of the statement to `read`, as Database::executeQuery gives
    /// them; they end with the call.
    ///
    /// The statement joins `verb` with `conjugation` on its `verbid`, uses no other
    /// column of it than `verb`, that one only in a LIKE, and groups by `verb._id`.
    /// Without packed forms in the file it takes longer and gives the same rows.
    void executeQuery(Database& database, std::string_view sql, const std::vector<SqlValue>& values,
                      const Reader& read);

private:
    /// Whether the tables are those of this database.
    bool load(const Database& database);

    /// Only compared.
    const Database* loadedFrom_ = nullptr;
    std::unique_ptr<const ResidentTable> forms_;
    std::unique_ptr<const ResidentTable> verbs_;
};

} // namespace lumora::platform
