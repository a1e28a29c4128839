// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/form_search/form_search.h"

#include "platform/form_search/resident_table.h"

#include <new>
#include <optional>

// A join of 7,000 verbs with their 700,000 forms takes SQLite about 0.2 s,
// whatever the index: it evaluates every term of the condition for every form. One row a
// verb has to come out of the join, and one call has to look through all forms of
// the verb. Both are possible without a change to the statement: the temporary
// schema comes before the file's when a table is looked up, so a virtual table
// there stands in for the real one; and a virtual table may bring a LIKE for its
// columns. The form it hands to that is a pointer, which reads as NULL elsewhere.
//
// What the join finds SQLite then copies several times, for GROUP BY and for the
// sort, but not texts that stay where they are: so the verbs are in memory too.
//
// The stand-ins are made for one statement and dropped after it. If they stayed, they
// would have to answer all other statements as well.

namespace lumora::platform {

namespace {

constexpr const char* kVerbs = "verb";
constexpr const char* kForms = "conjugation";
constexpr const char* kReadVerbs = "SELECT * FROM main.verb ORDER BY 1";
constexpr const char* kReadForms =
    "SELECT verbid, forms AS verb FROM main.packed_forms ORDER BY verbid";

/// Makes a name mean a table in memory, for as long as it lives.
class StandIn {
public:
    StandIn(Database& database, const char* name, const ResidentTable& table)
        : database_(database), name_(name), shown_(table.show(database.handle(), name))
    {}
    StandIn(const StandIn&) = delete;
    StandIn& operator=(const StandIn&) = delete;
    ~StandIn()
    {
        // Without memory for this, or with rows still being read, only a new
        // connection is sure to be without the stand-in.
        if (shown_ && database_.isOpen() && !ResidentTable::drop(database_.handle(), name_)) {
            database_.close();
        }
    }

private:
    Database& database_;
    const char* name_;
    bool shown_;
};

} // namespace

FormSearch::FormSearch() = default;

FormSearch::~FormSearch() = default;

bool FormSearch::prepare(const Database& database)
{
    try {
        return database.isOpen() && load(database);
    } catch (const std::bad_alloc&) {
        return false;
    }
}

bool FormSearch::load(const Database& database)
{
    if (loadedFrom_ != &database) {
        loadedFrom_ = nullptr;
        forms_ = ResidentTable::read(database.handle(), kReadForms, ResidentTable::Cells::Packed);
        verbs_ = ResidentTable::read(database.handle(), kReadVerbs, ResidentTable::Cells::Text);
        loadedFrom_ = forms_ != nullptr && verbs_ != nullptr ? &database : nullptr;
    }
    return loadedFrom_ != nullptr;
}

void FormSearch::executeQuery(Database& database, std::string_view sql,
                              const std::vector<SqlValue>& values, const Reader& read)
{
    // Declared before the rows, so that they go after them.
    std::optional<StandIn> verbs;
    std::optional<StandIn> forms;
    try {
        if (prepare(database)) {
            forms.emplace(database, kForms, *forms_);
            verbs.emplace(database, kVerbs, *verbs_);
        }
    } catch (const std::bad_alloc&) {
        // The tables of the file serve without it.
    }
    auto rows = database.executeQuery(sql, values);
    read(rows);
}

} // namespace lumora::platform
