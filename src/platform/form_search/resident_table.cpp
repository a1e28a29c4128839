// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/form_search/resident_table.h"

#include <sqlite3.h>

#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

namespace lumora::platform {

namespace {

constexpr const char* kModule = "resident_table";
/// SQLite compares the names of pointer types, and wants them static.
constexpr const char* kPointer = "lumora resident cell";

enum Plan { AllRows, OneKey };

using SharedTable = std::shared_ptr<const ResidentTable>;

struct VirtualTable : sqlite3_vtab {
    SharedTable table;
};

struct Cursor : sqlite3_vtab_cursor {
    std::size_t row = 0;
    std::size_t end = 0;
};

struct Finalizer {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};

std::string quoted(const std::string& name)
{
    return '"' + name + '"';
}

bool execute(sqlite3* connection, const std::string& sql)
{
    return sqlite3_exec(connection, sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK;
}

/// SQLite hands back what it was given; it only knows the base.
Cursor& cursorOf(sqlite3_vtab_cursor* cursor)
{
    return *static_cast<Cursor*>(cursor);
}

const ResidentTable& tableOf(sqlite3_vtab_cursor* cursor)
{
    return *static_cast<VirtualTable*>(cursor->pVtab)->table;
}

int connectTable(sqlite3* connection, void* context, int /*count*/, const char* const* /*words*/,
                 sqlite3_vtab** made, char** /*error*/)
{
    const auto& table = *static_cast<SharedTable*>(context);
    try {
        std::string columns;
        for (const std::string& name : table->columns()) {
            columns += columns.empty() ? quoted(name) + " INTEGER" : ", " + quoted(name) + " TEXT";
        }
        const std::string sql = "CREATE TABLE resident (" + columns + ")";
        if (const int code = sqlite3_declare_vtab(connection, sql.c_str()); code != SQLITE_OK) {
            return code;
        }
        *made = new VirtualTable{{}, table};
    } catch (const std::bad_alloc&) {
        return SQLITE_NOMEM;
    }
    return SQLITE_OK;
}

int disconnectTable(sqlite3_vtab* table)
{
    delete static_cast<VirtualTable*>(table);
    return SQLITE_OK;
}

int choosePlan(sqlite3_vtab* base, sqlite3_index_info* info)
{
    info->idxNum = AllRows;
    info->estimatedRows =
        static_cast<sqlite3_int64>(static_cast<VirtualTable*>(base)->table->size());
    info->orderByConsumed =
        info->nOrderBy == 1 && info->aOrderBy[0].iColumn == 0 && info->aOrderBy[0].desc == 0 ? 1
                                                                                             : 0;
    for (int i = 0; i < info->nConstraint; ++i) {
        const auto& constraint = info->aConstraint[i];
        if (constraint.iColumn == 0 && constraint.op == SQLITE_INDEX_CONSTRAINT_EQ &&
            constraint.usable != 0) {
            info->idxNum = OneKey;
            info->aConstraintUsage[i].argvIndex = 1;
            info->aConstraintUsage[i].omit = 1;
            info->idxFlags = SQLITE_INDEX_SCAN_UNIQUE;
            info->estimatedRows = 1;
            break;
        }
    }
    info->estimatedCost = static_cast<double>(info->estimatedRows);
    return SQLITE_OK;
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

int filterRows(sqlite3_vtab_cursor* base, int plan, const char* /*planText*/, int /*count*/,
               sqlite3_value** values)
{
    Cursor& cursor = cursorOf(base);
    const ResidentTable& table = tableOf(base);
    if (plan == AllRows) {
        cursor.row = 0;
        cursor.end = table.size();
        return SQLITE_OK;
    }
    cursor.row = sqlite3_value_type(values[0]) == SQLITE_INTEGER
                     ? table.rowOf(sqlite3_value_int64(values[0]), cursor.row)
                     : table.size();
    cursor.end = std::min(cursor.row + 1, table.size());
    return SQLITE_OK;
}

int nextRow(sqlite3_vtab_cursor* cursor)
{
    ++cursorOf(cursor).row;
    return SQLITE_OK;
}

int isAtEnd(sqlite3_vtab_cursor* cursor)
{
    return cursorOf(cursor).row >= cursorOf(cursor).end ? 1 : 0;
}

int readColumn(sqlite3_vtab_cursor* base, sqlite3_context* context, int column)
{
    const ResidentTable& table = tableOf(base);
    const std::size_t row = cursorOf(base).row;
    if (column == 0) {
        sqlite3_result_int64(context, table.key(row));
        return SQLITE_OK;
    }
    // The cells outlive the statement, for the virtual table holds them. A text
    // without its length is known to end in NUL, and is never copied for one.
    const auto& cell = table.cell(row, static_cast<std::size_t>(column));
    if (table.kind() == ResidentTable::Cells::Text) {
        sqlite3_result_text(context, cell.data(), -1, SQLITE_STATIC);
    } else {
        sqlite3_result_pointer(context, const_cast<std::string_view*>(&cell), kPointer, nullptr);
    }
    return SQLITE_OK;
}

int readRowId(sqlite3_vtab_cursor* base, sqlite3_int64* id)
{
    *id = tableOf(base).key(cursorOf(base).row);
    return SQLITE_OK;
}

constexpr sqlite3_module makeModule()
{
    sqlite3_module module{};
    module.xCreate = connectTable;
    module.xConnect = connectTable;
    module.xBestIndex = choosePlan;
    module.xDisconnect = disconnectTable;
    module.xDestroy = disconnectTable;
    module.xOpen = openCursor;
    module.xClose = closeCursor;
    module.xFilter = filterRows;
    module.xNext = nextRow;
    module.xEof = isAtEnd;
    module.xColumn = readColumn;
    module.xRowid = readRowId;
    return module;
}

constexpr sqlite3_module kResidentModule = makeModule();

} // namespace

SharedTable ResidentTable::read(sqlite3* connection, const std::string& select, Cells kind)
{
    sqlite3_stmt* prepared = nullptr;
    if (sqlite3_prepare_v2(connection, select.c_str(), -1, &prepared, nullptr) != SQLITE_OK) {
        return nullptr;
    }
    const std::unique_ptr<sqlite3_stmt, Finalizer> rows(prepared);
    auto table = std::make_shared<ResidentTable>();
    table->kind_ = kind;
    const int count = sqlite3_column_count(prepared);
    for (int i = 0; i < count; ++i) {
        table->columns_.emplace_back(sqlite3_column_name(prepared, i));
    }

    const int cellType = kind == Cells::Text ? SQLITE_TEXT : SQLITE_BLOB;
    constexpr auto kNull = std::string::npos;
    std::vector<std::pair<std::size_t, std::size_t>> places;
    int code = SQLITE_OK;
    while ((code = sqlite3_step(prepared)) == SQLITE_ROW) {
        if (sqlite3_column_type(prepared, 0) != SQLITE_INTEGER) {
            return nullptr;
        }
        table->keys_.push_back(sqlite3_column_int64(prepared, 0));
        for (int i = 1; i < count; ++i) {
            const int type = sqlite3_column_type(prepared, i);
            if (type == SQLITE_NULL) {
                places.emplace_back(kNull, 0);
                continue;
            }
            const auto* const data = static_cast<const char*>(sqlite3_column_blob(prepared, i));
            const auto size = static_cast<std::size_t>(sqlite3_column_bytes(prepared, i));
            // A NUL inside a text would end it.
            if (type != cellType ||
                (kind == Cells::Text && size > 0 && std::memchr(data, 0, size) != nullptr)) {
                return nullptr;
            }
            places.emplace_back(table->bytes_.size(), size);
            table->bytes_.append(data, size) += '\0';
        }
    }
    if (code != SQLITE_DONE) {
        return nullptr;
    }
    table->cells_.reserve(places.size());
    for (const auto& [begin, size] : places) {
        table->cells_.push_back(begin == kNull
                                    ? std::string_view{}
                                    : std::string_view(table->bytes_).substr(begin, size));
    }
    return table;
}

std::size_t ResidentTable::rowOf(std::int64_t key, std::size_t guess) const
{
    // Keys mostly come in order.
    for (const std::size_t row : {guess, guess + 1}) {
        if (row < keys_.size() && keys_[row] == key) {
            return row;
        }
    }
    const auto at = std::lower_bound(keys_.begin(), keys_.end(), key);
    return at != keys_.end() && *at == key ? static_cast<std::size_t>(at - keys_.begin()) : size();
}

bool showResidentTable(sqlite3* connection, const char* name, const SharedTable& table)
{
    // Each name has its module: a module made again would take the table of one
    // shown before. SQLite frees the context, of a failed call too.
    const std::string module = std::string(kModule) + '_' + name;
    return sqlite3_create_module_v2(
               connection, module.c_str(), &kResidentModule, new SharedTable(table),
               [](void* context) { delete static_cast<SharedTable*>(context); }) == SQLITE_OK &&
           execute(connection, "CREATE VIRTUAL TABLE temp." + quoted(name) + " USING " + module);
}

bool dropResidentTable(sqlite3* connection, const char* name)
{
    // By SQLite's own memory: it is called where nothing may be thrown.
    char* const sql = sqlite3_mprintf("DROP TABLE temp.\"%w\"", name);
    const bool isDone =
        sql != nullptr && sqlite3_exec(connection, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
    sqlite3_free(sql);
    return isDone;
}

const std::string_view* pointedCell(sqlite3_value* value)
{
    return static_cast<const std::string_view*>(sqlite3_value_pointer(value, kPointer));
}

} // namespace lumora::platform
