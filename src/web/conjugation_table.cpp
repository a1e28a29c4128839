// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "web/conjugation_table.h"

#include "conjugator/grammar.h"
#include "web/content_source.h"

#include <sqlite3.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

namespace lumora::web {

namespace {

constexpr const char* kSchema =
    "CREATE TABLE conjugation (_id INTEGER, verbid INTEGER, pronoun TEXT, verb TEXT, "
    "type TEXT, conj_order INTEGER, display INTEGER)";
enum Column { Id, VerbId, Pronoun, Form, Type, Order, Display };
constexpr int kOneVerb = 1;
constexpr std::int64_t kRowsAVerb = 1000;

/// Global, since SQLite passes no pointer of ours to an automatic extension.
ContentSource* theSource = nullptr;

struct Cursor : sqlite3_vtab_cursor {
    const verbdb::Content* content = nullptr;
    std::size_t verb = 0;
    std::size_t end = 0;
    std::size_t row = 0;
    std::vector<conjugator::Row> rows;

    void load()
    {
        rows.clear();
        row = 0;
        while (verb < end) {
            rows = content->conjugator.rows(content->verbs[verb].entry);
            if (!rows.empty()) {
                return;
            }
            ++verb;
        }
    }
};

Cursor& cursorOf(sqlite3_vtab_cursor* cursor)
{
    return *static_cast<Cursor*>(cursor);
}

int connectTable(sqlite3* connection, void* /*client*/, int /*count*/,
                 const char* const* /*arguments*/, sqlite3_vtab** table, char** /*error*/)
{
    const int code = sqlite3_declare_vtab(connection, kSchema);
    if (code == SQLITE_OK) {
        *table = new sqlite3_vtab{};
    }
    return code;
}

int disconnectTable(sqlite3_vtab* table)
{
    delete table;
    return SQLITE_OK;
}

int planQuery(sqlite3_vtab* /*table*/, sqlite3_index_info* info)
{
    for (int i = 0; i < info->nConstraint; ++i) {
        const auto& constraint = info->aConstraint[i];
        if (constraint.usable != 0 && constraint.iColumn == VerbId &&
            constraint.op == SQLITE_INDEX_CONSTRAINT_EQ) {
            info->idxNum = kOneVerb;
            info->aConstraintUsage[i].argvIndex = 1;
            info->estimatedCost = 100;
            info->estimatedRows = 100;
            info->orderByConsumed =
                static_cast<int>(info->nOrderBy == 1 && info->aOrderBy[0].iColumn == Order &&
                                 info->aOrderBy[0].desc == 0);
            return SQLITE_OK;
        }
    }
    info->estimatedCost = 1e7;
    info->estimatedRows = 700'000;
    return SQLITE_OK;
}

int openCursor(sqlite3_vtab* /*table*/, sqlite3_vtab_cursor** cursor)
{
    *cursor = new Cursor{};
    return SQLITE_OK;
}

int closeCursor(sqlite3_vtab_cursor* cursor)
{
    delete static_cast<Cursor*>(cursor);
    return SQLITE_OK;
}

int startQuery(sqlite3_vtab_cursor* base, int plan, const char* /*text*/, int /*count*/,
               sqlite3_value** arguments)
{
    auto& cursor = cursorOf(base);
    cursor.content = theSource == nullptr ? nullptr : theSource->get();
    if (cursor.content == nullptr) {
        return SQLITE_ERROR;
    }
    const auto& verbs = cursor.content->verbs;
    cursor.verb = 0;
    cursor.end = verbs.size();
    if (plan == kOneVerb) {
        const auto id = sqlite3_value_int64(arguments[0]);
        const auto found = std::lower_bound(
            verbs.begin(), verbs.end(), id,
            [](const verbdb::Verb& verb, std::int64_t wanted) { return verb.id < wanted; });
        cursor.verb = static_cast<std::size_t>(found - verbs.begin());
        cursor.end = found != verbs.end() && found->id == id ? cursor.verb + 1 : cursor.verb;
    }
    cursor.load();
    return SQLITE_OK;
}

int nextRow(sqlite3_vtab_cursor* base)
{
    auto& cursor = cursorOf(base);
    if (++cursor.row == cursor.rows.size()) {
        ++cursor.verb;
        cursor.load();
    }
    return SQLITE_OK;
}

int isAtEnd(sqlite3_vtab_cursor* base)
{
    const auto& cursor = cursorOf(base);
    return static_cast<int>(cursor.verb >= cursor.end);
}

void answer(sqlite3_context* context, std::string_view text)
{
    // NOLINTNEXTLINE(performance-no-int-to-ptr): SQLite's own constant.
    sqlite3_result_text(context, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}

int columnOf(sqlite3_vtab_cursor* base, sqlite3_context* context, int column)
{
    const auto& cursor = cursorOf(base);
    const auto& row = cursor.rows[cursor.row];
    const auto order = static_cast<std::int64_t>(cursor.row) + 1;
    const auto verb = cursor.content->verbs[cursor.verb].id;
    switch (column) {
    case Id:
        sqlite3_result_int64(context, verb * kRowsAVerb + order);
        break;
    case VerbId:
        sqlite3_result_int64(context, verb);
        break;
    case Pronoun:
        answer(context, row.pronoun);
        break;
    case Form:
        answer(context, row.verb);
        break;
    case Type:
        answer(context, conjugator::name(row.tense));
        break;
    case Order:
        sqlite3_result_int64(context, order);
        break;
    default:
        sqlite3_result_int(context, row.shown ? 1 : 0);
        break;
    }
    return SQLITE_OK;
}

int rowIdOf(sqlite3_vtab_cursor* base, sqlite3_int64* id)
{
    const auto& cursor = cursorOf(base);
    *id =
        cursor.content->verbs[cursor.verb].id * kRowsAVerb + static_cast<std::int64_t>(cursor.row);
    return SQLITE_OK;
}

/// Without xCreate the table is there by its name alone and in no file.
sqlite3_module conjugationModule()
{
    sqlite3_module module{};
    module.xConnect = connectTable;
    module.xDisconnect = disconnectTable;
    module.xBestIndex = planQuery;
    module.xOpen = openCursor;
    module.xClose = closeCursor;
    module.xFilter = startQuery;
    module.xNext = nextRow;
    module.xEof = isAtEnd;
    module.xColumn = columnOf;
    module.xRowid = rowIdOf;
    return module;
}

int addTable(sqlite3* connection, char** /*error*/, const void* /*routines*/)
{
    static const sqlite3_module kModule = conjugationModule();
    return sqlite3_create_module(connection, "conjugation", &kModule, nullptr);
}

/// In the type that SQLite asks for, whatever the function is.
void (*extension())()
{
    return reinterpret_cast<void (*)()>(&addTable);
}

} // namespace

ConjugationTable::ConjugationTable(ContentSource& source)
{
    theSource = &source;
    sqlite3_auto_extension(extension());
}

ConjugationTable::~ConjugationTable()
{
    sqlite3_cancel_auto_extension(extension());
    theSource = nullptr;
}

} // namespace lumora::web
