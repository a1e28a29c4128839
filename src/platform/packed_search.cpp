// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/packed_search.h"

#include "platform/database.h"
#include "platform/packed_pattern.h"

#include <sqlite3.h>

#include <algorithm>
#include <cstdint>
#include <new>
#include <string>
#include <string_view>
#include <vector>

// A join of 7,000 verbs with their 700,000 forms takes SQLite ten frames whatever
// the index: it evaluates every term of the condition for every form. One row a
// verb has to come out of the join, and one call has to look through all forms of
// the verb. Both are possible without a change to the statement: the temporary
// schema comes before the file's when a table is looked up, so a virtual table
// there stands in for the real one, and a virtual table may bring its own LIKE for
// its columns. The form it hands to that LIKE is a pointer, which reads as NULL
// everywhere else.
//
// The stand-in is made for one statement and dropped after it. A lasting one would
// have to hand on the rows of the real table to all the others.

namespace lumora::platform {

/// The packed texts of every key, in the order of the keys.
class PackedTexts {
public:
    struct Entry {
        std::int64_t key = 0;
        std::string packed;
    };

    PackedColumn column;
    std::vector<Entry> entries;
};

namespace {

constexpr const char* kModule = "packed_texts";
/// SQLite compares the names of pointer types, and wants them static.
constexpr const char* kPointer = "lumora packed texts";

using SharedTexts = std::shared_ptr<const PackedTexts>;
using Entry = PackedTexts::Entry;

std::string quoted(const char* name)
{
    return '"' + std::string(name) + '"';
}

struct StandIn : sqlite3_vtab {
    SharedTexts texts;
};

struct Cursor : sqlite3_vtab_cursor {
    /// The entry of the key asked for last, or the one after it.
    std::size_t place = 0;
    bool found = false;
};

/// SQLite hands back what it was given; it only knows the base.
StandIn& standIn(sqlite3_vtab* table)
{
    return *static_cast<StandIn*>(table);
}

Cursor& cursorOf(sqlite3_vtab_cursor* cursor)
{
    return *static_cast<Cursor*>(cursor);
}

int connectStandIn(sqlite3* connection, void* context, int /*count*/, const char* const* /*words*/,
                   sqlite3_vtab** table, char** /*error*/)
{
    const auto& texts = *static_cast<SharedTexts*>(context);
    try {
        const std::string columns = "CREATE TABLE stand_in (" + quoted(texts->column.key) +
                                    " INTEGER, " + quoted(texts->column.column) + " TEXT)";
        if (const int code = sqlite3_declare_vtab(connection, columns.c_str()); code != SQLITE_OK) {
            return code;
        }
        *table = new StandIn{{}, texts};
    } catch (const std::bad_alloc&) {
        return SQLITE_NOMEM;
    }
    return SQLITE_OK;
}

int disconnectStandIn(sqlite3_vtab* table)
{
    delete &standIn(table);
    return SQLITE_OK;
}

/// One plan only: the row of a key.
int planJoin(sqlite3_vtab* /*table*/, sqlite3_index_info* info)
{
    for (int i = 0; i < info->nConstraint; ++i) {
        const auto& constraint = info->aConstraint[i];
        if (constraint.iColumn == 0 && constraint.op == SQLITE_INDEX_CONSTRAINT_EQ &&
            constraint.usable != 0) {
            info->aConstraintUsage[i].argvIndex = 1;
            info->aConstraintUsage[i].omit = 1;
            info->idxFlags = SQLITE_INDEX_SCAN_UNIQUE;
            info->estimatedCost = 1;
            info->estimatedRows = 1;
            return SQLITE_OK;
        }
    }
    return SQLITE_CONSTRAINT;
}

int openCursor(sqlite3_vtab* /*table*/, sqlite3_vtab_cursor** cursor)
{
    *cursor = new (std::nothrow) Cursor{};
    return *cursor == nullptr ? SQLITE_NOMEM : SQLITE_OK;
}

int closeCursor(sqlite3_vtab_cursor* cursor)
{
    delete &cursorOf(cursor);
    return SQLITE_OK;
}

int findKey(sqlite3_vtab_cursor* base, int /*plan*/, const char* /*planText*/, int /*count*/,
            sqlite3_value** values)
{
    Cursor& cursor = cursorOf(base);
    const auto& entries = standIn(base->pVtab).texts->entries;
    const std::int64_t key = sqlite3_value_int64(values[0]);
    const auto holds = [&](std::size_t place) {
        return place < entries.size() && entries[place].key == key;
    };
    // Keys mostly come in order.
    if (!holds(cursor.place) && !holds(++cursor.place)) {
        const auto at =
            std::lower_bound(entries.begin(), entries.end(), key,
                             [](const Entry& entry, std::int64_t id) { return entry.key < id; });
        cursor.place = static_cast<std::size_t>(at - entries.begin());
    }
    cursor.found = sqlite3_value_type(values[0]) == SQLITE_INTEGER && holds(cursor.place);
    return SQLITE_OK;
}

int endRow(sqlite3_vtab_cursor* cursor)
{
    cursorOf(cursor).found = false;
    return SQLITE_OK;
}

int isAtEnd(sqlite3_vtab_cursor* cursor)
{
    return cursorOf(cursor).found ? 0 : 1;
}

int readColumn(sqlite3_vtab_cursor* base, sqlite3_context* context, int column)
{
    const Entry& entry = standIn(base->pVtab).texts->entries[cursorOf(base).place];
    if (column == 0) {
        sqlite3_result_int64(context, entry.key);
    } else {
        // The entry outlives the statement: the stand-in holds it.
        sqlite3_result_pointer(context, const_cast<Entry*>(&entry), kPointer, nullptr);
    }
    return SQLITE_OK;
}

int readRowId(sqlite3_vtab_cursor* base, sqlite3_int64* id)
{
    *id = standIn(base->pVtab).texts->entries[cursorOf(base).place].key;
    return SQLITE_OK;
}

const PackedPattern* patternOf(sqlite3_context* context, sqlite3_value* value)
{
    // SQLite keeps it for as long as the pattern stays the same.
    if (const void* kept = sqlite3_get_auxdata(context, 0)) {
        return static_cast<const PackedPattern*>(kept);
    }
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    if (text == nullptr) {
        return nullptr;
    }
    const auto size = static_cast<std::size_t>(sqlite3_value_bytes(value));
    auto* const made = new PackedPattern(std::string_view(text, size));
    sqlite3_set_auxdata(context, 0, made,
                        [](void* pattern) { delete static_cast<PackedPattern*>(pattern); });
    // Gone already if there was no memory to keep it.
    return static_cast<const PackedPattern*>(sqlite3_get_auxdata(context, 0));
}

/// The built-in LIKE's answers: NULL stays NULL, and a pattern too long is an error.
void likeAnyText(sqlite3_context* context, int /*count*/, sqlite3_value** values)
{
    sqlite3* const connection = sqlite3_context_db_handle(context);
    if (sqlite3_value_bytes(values[0]) >
        sqlite3_limit(connection, SQLITE_LIMIT_LIKE_PATTERN_LENGTH, -1)) {
        sqlite3_result_error(context, "LIKE or GLOB pattern too complex", -1);
        return;
    }
    const auto* const entry = static_cast<const Entry*>(sqlite3_value_pointer(values[1], kPointer));
    if (entry == nullptr || sqlite3_value_type(values[0]) == SQLITE_NULL) {
        return;
    }
    try {
        if (const PackedPattern* const pattern = patternOf(context, values[0])) {
            sqlite3_result_int(context, pattern->matchesAny(entry->packed) ? 1 : 0);
            return;
        }
    } catch (const std::bad_alloc&) {
    }
    sqlite3_result_error_nomem(context);
}

int findFunction(sqlite3_vtab* /*table*/, int count, const char* name,
                 void (**function)(sqlite3_context*, int, sqlite3_value**), void** /*context*/)
{
    if (count != 2 || sqlite3_stricmp(name, "like") != 0) {
        return 0;
    }
    *function = likeAnyText;
    return 1;
}

constexpr sqlite3_module makeModule()
{
    sqlite3_module module{};
    module.xCreate = connectStandIn;
    module.xConnect = connectStandIn;
    module.xBestIndex = planJoin;
    module.xDisconnect = disconnectStandIn;
    module.xDestroy = disconnectStandIn;
    module.xOpen = openCursor;
    module.xClose = closeCursor;
    module.xFilter = findKey;
    module.xNext = endRow;
    module.xEof = isAtEnd;
    module.xColumn = readColumn;
    module.xRowid = readRowId;
    module.xFindFunction = findFunction;
    return module;
}

constexpr sqlite3_module kStandInModule = makeModule();

bool execute(sqlite3* connection, const std::string& sql)
{
    return sqlite3_exec(connection, sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK;
}

struct Finalizer {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};

/// Null when the helper table is missing, unreadable or not what it should be.
SharedTexts readTexts(sqlite3* connection, const PackedColumn& column)
{
    const std::string key = quoted(column.key);
    const std::string sql = "SELECT " + key + ", " + quoted(column.packedColumn) + " FROM main." +
                            quoted(column.packedTable) + " ORDER BY " + key;
    sqlite3_stmt* prepared = nullptr;
    if (sqlite3_prepare_v2(connection, sql.c_str(), -1, &prepared, nullptr) != SQLITE_OK) {
        return nullptr;
    }
    const std::unique_ptr<sqlite3_stmt, Finalizer> rows(prepared);
    auto texts = std::make_shared<PackedTexts>();
    texts->column = column;
    int code = SQLITE_OK;
    while ((code = sqlite3_step(prepared)) == SQLITE_ROW) {
        const auto* const bytes = static_cast<const char*>(sqlite3_column_blob(prepared, 1));
        const auto size = static_cast<std::size_t>(sqlite3_column_bytes(prepared, 1));
        if (bytes == nullptr || bytes[0] != '\0' || bytes[size - 1] != '\0') {
            return nullptr;
        }
        texts->entries.push_back({sqlite3_column_int64(prepared, 0), std::string(bytes, size)});
    }
    return code == SQLITE_DONE ? texts : nullptr;
}

bool makeStandIn(sqlite3* connection, const SharedTexts& texts)
{
    // Registering again replaces; SQLite frees the context, of a failed call too.
    return sqlite3_create_module_v2(
               connection, kModule, &kStandInModule, new SharedTexts(texts),
               [](void* context) { delete static_cast<SharedTexts*>(context); }) == SQLITE_OK &&
           execute(connection, "CREATE VIRTUAL TABLE temp." + quoted(texts->column.table) +
                                   " USING " + kModule);
}

} // namespace

PackedSearch::PackedSearch(Database& database, const PackedColumn& column)
    : database_(database), table_(column.table)
{
    if (!database.isOpen()) {
        return;
    }
    try {
        auto& texts = database.packedTexts_;
        if (texts == nullptr || texts->column != column) {
            texts = readTexts(database.connection_, column);
        }
        if (texts != nullptr && makeStandIn(database.connection_, texts)) {
            connection_ = database.connection_;
        }
    } catch (const std::bad_alloc&) {
        // The real table does without.
    }
}

PackedSearch::~PackedSearch()
{
    if (connection_ == nullptr || connection_ != database_.connection_) {
        return;
    }
    // Without memory for this, or with rows still being read, only a new
    // connection is sure to be without the stand-in.
    char* const drop = sqlite3_mprintf("DROP TABLE temp.\"%w\"", table_);
    if (drop == nullptr ||
        sqlite3_exec(connection_, drop, nullptr, nullptr, nullptr) != SQLITE_OK) {
        database_.close();
    }
    sqlite3_free(drop);
}

} // namespace lumora::platform
