// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/form_search/resident_table.h"

#include "platform/form_search/packed_pattern.h"

#include <sqlite3.h>

#include <algorithm>
#include <new>
#include <string_view>
#include <utility>

namespace lumora::platform {

namespace {

/// SQLite compares the names of pointer types, and wants them static.
constexpr const char* kPointer = "lumora packed texts";

struct VirtualTable : sqlite3_vtab {
    explicit VirtualTable(const ResidentTable& shown) : sqlite3_vtab{}, table(shown) {}
    const ResidentTable& table;
    /// The last one asked for, and made ready.
    std::string patternText;
    PackedPattern pattern{patternText};
};

struct Cursor : sqlite3_vtab_cursor {
    std::size_t row = 0;
    std::size_t end = 0;
};

/// SQLite hands back the cursor that it was given, as its base type.
Cursor& cursorOf(sqlite3_vtab_cursor* cursor)
{
    return *static_cast<Cursor*>(cursor);
}

const ResidentTable& tableOf(sqlite3_vtab* table)
{
    return static_cast<VirtualTable*>(table)->table;
}

int connectTable(sqlite3* connection, void* context, int /*count*/, const char* const* /*words*/,
                 sqlite3_vtab** made, char** /*error*/) noexcept
{
    const auto& table = *static_cast<const ResidentTable*>(context);
    const int code = sqlite3_declare_vtab(connection, table.schema().c_str());
    *made = code == SQLITE_OK ? new (std::nothrow) VirtualTable(table) : nullptr;
    return code == SQLITE_OK && *made == nullptr ? SQLITE_NOMEM : code;
}

int choosePlan(sqlite3_vtab* table, sqlite3_index_info* info)
{
    info->estimatedRows = static_cast<sqlite3_int64>(tableOf(table).size());
    const auto* const order = info->aOrderBy;
    info->orderByConsumed = info->nOrderBy == 1 && order->iColumn == 0 && order->desc == 0 ? 1 : 0;
    for (int i = 0; i < info->nConstraint; ++i) {
        const auto& constraint = info->aConstraint[i];
        if (constraint.iColumn == 0 && constraint.op == SQLITE_INDEX_CONSTRAINT_EQ &&
            constraint.usable != 0) {
            info->aConstraintUsage[i] = {1, 1};
            info->idxFlags = SQLITE_INDEX_SCAN_UNIQUE;
            info->estimatedRows = 1;
            break;
        }
    }
    info->estimatedCost = static_cast<double>(info->estimatedRows);
    return SQLITE_OK;
}

/// With a value, the rows with that key.
int filterRows(sqlite3_vtab_cursor* base, int /*plan*/, const char* /*planText*/, int count,
               sqlite3_value** values)
{
    Cursor& cursor = cursorOf(base);
    const ResidentTable& table = tableOf(base->pVtab);
    cursor.row = 0;
    cursor.end = table.size();
    if (count == 1) {
        cursor.row = sqlite3_value_type(values[0]) == SQLITE_INTEGER
                         ? table.rowOf(sqlite3_value_int64(values[0]))
                         : table.size();
        cursor.end = std::min(cursor.row + 1, table.size());
    }
    return SQLITE_OK;
}

int readColumn(sqlite3_vtab_cursor* cursor, sqlite3_context* context, int column)
{
    const ResidentTable& table = tableOf(cursor->pVtab);
    const std::size_t row = cursorOf(cursor).row;
    // A cell without a value is NULL, and so is no result.
    if (column == 0) {
        sqlite3_result_int64(context, table.key(row));
    } else if (const auto& cell = table.cell(row, static_cast<std::size_t>(column));
               cell && table.kind() == ResidentTable::Cells::Text) {
        // It outlives the statement. A text without its length is known to end in
        // NUL, and is never copied for one.
        sqlite3_result_text(context, cell->c_str(), -1, SQLITE_STATIC);
    } else if (cell) {
        sqlite3_result_pointer(context, const_cast<std::string*>(&*cell), kPointer, nullptr);
    }
    return SQLITE_OK;
}

/// Pattern LIKE packed texts.
void like(sqlite3_context* context, int /*count*/, sqlite3_value** values) noexcept
{
    const void* const packed = sqlite3_value_pointer(values[1], kPointer);
    const auto* const text = reinterpret_cast<const char*>(sqlite3_value_text(values[0]));
    if (packed == nullptr || text == nullptr) {
        return;
    }
    if (sqlite3_value_bytes(values[0]) >
        sqlite3_limit(sqlite3_context_db_handle(context), SQLITE_LIMIT_LIKE_PATTERN_LENGTH, -1)) {
        sqlite3_result_error(context, "LIKE or GLOB pattern too complex", -1);
        return;
    }
    auto& table = *static_cast<VirtualTable*>(sqlite3_user_data(context));
    if (table.patternText != text) {
        table.patternText = text;
        table.pattern = PackedPattern(text);
    }
    const auto& texts = *static_cast<const std::string*>(packed);
    sqlite3_result_int(context, table.pattern.matchesAny(texts) ? 1 : 0);
}

int findFunction(sqlite3_vtab* table, int count, const char* name,
                 void (**function)(sqlite3_context*, int, sqlite3_value**), void** context)
{
    *function = like;
    *context = table;
    const bool isPacked = tableOf(table).kind() == ResidentTable::Cells::Packed;
    return isPacked && count == 2 && std::string_view(name) == "like" ? 1 : 0;
}

constexpr sqlite3_module makeModule()
{
    sqlite3_module module{};
    module.xCreate = connectTable;
    module.xConnect = connectTable;
    module.xBestIndex = choosePlan;
    module.xDisconnect = [](sqlite3_vtab* table) {
        delete static_cast<VirtualTable*>(table);
        return SQLITE_OK;
    };
    module.xDestroy = module.xDisconnect;
    module.xOpen = [](sqlite3_vtab* /*table*/, sqlite3_vtab_cursor** cursor) {
        *cursor = new (std::nothrow) Cursor{};
        return *cursor == nullptr ? SQLITE_NOMEM : SQLITE_OK;
    };
    module.xClose = [](sqlite3_vtab_cursor* cursor) {
        delete &cursorOf(cursor);
        return SQLITE_OK;
    };
    module.xFilter = filterRows;
    module.xNext = [](sqlite3_vtab_cursor* cursor) {
        ++cursorOf(cursor).row;
        return SQLITE_OK;
    };
    module.xEof = [](sqlite3_vtab_cursor* cursor) {
        return cursorOf(cursor).row >= cursorOf(cursor).end ? 1 : 0;
    };
    module.xColumn = readColumn;
    module.xRowid = [](sqlite3_vtab_cursor* cursor, sqlite3_int64* id) {
        *id = tableOf(cursor->pVtab).key(cursorOf(cursor).row);
        return SQLITE_OK;
    };
    module.xFindFunction = findFunction;
    return module;
}

constexpr sqlite3_module kModule = makeModule();

/// A NUL inside a text would end it, and packed texts stand between NULs.
bool isCell(std::string_view bytes, int type, ResidentTable::Cells kind)
{
    if (kind == ResidentTable::Cells::Text) {
        return type == SQLITE_TEXT && bytes.find('\0') == std::string_view::npos;
    }
    return type == SQLITE_BLOB && !bytes.empty() && bytes.front() == '\0' && bytes.back() == '\0';
}

} // namespace

std::unique_ptr<const ResidentTable> ResidentTable::read(sqlite3* connection, const char* select,
                                                         Cells kind)
{
    sqlite3_stmt* prepared = nullptr;
    if (sqlite3_prepare_v2(connection, select, -1, &prepared, nullptr) != SQLITE_OK) {
        return nullptr;
    }
    const std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt*)> rows(prepared, sqlite3_finalize);
    auto table = std::make_unique<ResidentTable>();
    table->kind_ = kind;
    const int count = sqlite3_column_count(prepared);
    table->schema_ = "CREATE TABLE resident (";
    for (int i = 0; i < count; ++i) {
        table->schema_ += '"' + std::string(sqlite3_column_name(prepared, i));
        table->schema_ += i == 0 ? "\" INTEGER" : "\" TEXT";
        table->schema_ += i + 1 < count ? ", " : ")";
    }

    int code = SQLITE_OK;
    while ((code = sqlite3_step(prepared)) == SQLITE_ROW) {
        if (sqlite3_column_type(prepared, 0) != SQLITE_INTEGER) {
            return nullptr;
        }
        table->keys_.push_back(sqlite3_column_int64(prepared, 0));
        for (int i = 1; i < count; ++i) {
            auto& cell = table->cells_.emplace_back();
            if (const int type = sqlite3_column_type(prepared, i); type != SQLITE_NULL) {
                const auto* const data = static_cast<const char*>(sqlite3_column_blob(prepared, i));
                cell.emplace(data, static_cast<std::size_t>(sqlite3_column_bytes(prepared, i)));
                if (!isCell(*cell, type, kind)) {
                    return nullptr;
                }
            }
        }
    }
    return code == SQLITE_DONE ? std::move(table) : nullptr;
}

std::size_t ResidentTable::rowOf(std::int64_t key) const
{
    const auto at = std::lower_bound(keys_.begin(), keys_.end(), key);
    return at != keys_.end() && *at == key ? static_cast<std::size_t>(at - keys_.begin()) : size();
}

bool ResidentTable::show(sqlite3* connection, const std::string& name) const
{
    // Each name has its module: a module made again would take the table of one
    // shown before.
    const std::string module = "resident_" + name;
    const std::string sql = "CREATE VIRTUAL TABLE temp." + name + " USING " + module;
    return sqlite3_create_module(connection, module.c_str(), &kModule,
                                 const_cast<ResidentTable*>(this)) == SQLITE_OK &&
           sqlite3_exec(connection, sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK;
}

bool ResidentTable::drop(sqlite3* connection, const std::string& name)
{
    const std::string sql = "DROP TABLE temp." + name;
    return sqlite3_exec(connection, sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK;
}

} // namespace lumora::platform
